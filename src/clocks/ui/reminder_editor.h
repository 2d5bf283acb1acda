#pragma once

#include <QDateEdit>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QTimeEdit>
#include <QTimer>

#include "clocks/reminder.h"
#include "clocks/ui/reminder_ports.h"
#include "uikit/template_dialog.h"

namespace rlx {

/// The dialog in which one reminder is set. It tells at once what the time means on the device's own clock and refuses
/// a time that has passed. User-interface thread.
class CReminderEditor : public CTemplateDialog {
    Q_OBJECT

public:
    CReminderEditor(const ReminderPorts& ports, Reminder reminder, QWidget* parent = nullptr);

    /// What the person has set.
    const Reminder& Result() const { return m_reminder; }

    void accept() override;

private:
    void Fill();
    void ConnectFields();
    void ChooseCity();
    void ShowCity();
    void ReadFields();
    void ShowNote();
    QString PastText(CReminderClock& clock) const;
    QStringList NotesOn(const ReminderMoment& moment, CReminderClock& clock) const;
    std::u16string OtherClock(const ReminderMoment& moment, CityIndex city) const;

    ReminderPorts m_ports;
    Reminder m_reminder;
    const ClockForm m_form;
    QLineEdit* m_text;
    QPushButton* m_city;
    QDateEdit* m_date;
    QTimeEdit* m_time;
    QLabel* m_note;
    QTimer m_clockTimer;  ///< what is left of the time gets less while the dialog stands
};

}  // namespace rlx
