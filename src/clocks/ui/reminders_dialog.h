#pragma once

#include <QListWidget>
#include <QPushButton>
#include <QTimer>
#include <optional>
#include <string>

#include "clocks/reminder_store.h"
#include "clocks/ui/reminder_ports.h"
#include "uikit/template_dialog.h"

namespace rlx {

/// The dialog with the five reminders. User-interface thread.
class CRemindersDialog : public CTemplateDialog {
    Q_OBJECT

public:
    explicit CRemindersDialog(const ReminderPorts& ports, QWidget* parent = nullptr);

    /// Lets the person set a new reminder for a city at once, in the first place that is free; where none is, the
    /// person chooses one.
    void SetFor(CityIndex city);

signals:
    /// A reminder was set or cleared; it is stored.
    void Changed();

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void Connect();
    void Fill();
    void ShowButtons();
    QString RowText(std::size_t number);
    Reminder NewReminder();
    std::optional<int> FreeRow();
    void Edit();
    void Clear();
    void Stored(bool stored);

    ReminderPorts m_ports;
    CReminderStore m_store;
    std::u16string m_place;  ///< of new reminders; empty: the home city
    QListWidget* m_list;
    QPushButton* m_edit;
    QPushButton* m_clear;
    QTimer m_clockTimer;
};

}  // namespace rlx
