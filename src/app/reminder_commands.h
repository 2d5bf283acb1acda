#pragma once

#include <QObject>
#include <QTimer>
#include <optional>

#include "app/reminder_duty.h"
#include "clocks/ui/clocks_screen.h"
#include "clocks/ui/reminder_ports.h"

namespace rlx {

/// What the window does with reminders: shows and changes them, tells of them when their time comes, hidden or not, and
/// of those missed when it starts. References must outlive it. User-interface thread.
class CReminderCommands : public QObject {
    Q_OBJECT

public:
    CReminderCommands(const ReminderPorts& ports, CReminderDuty& duty, CClocksScreen& screen, QWidget& window);

    /// Waits for the reminders from now on.
    void Start();

    /// Tells of what was missed while the program did not run. Comes once the window is shown.
    void TellMissed();

    /// The dialog with the reminders; with a city it begins with a new one for that city.
    void Open(std::optional<CityIndex> city);

private:
    void Check();
    void Aim();

    ReminderPorts m_ports;
    CReminderDuty& m_duty;
    CClocksScreen& m_screen;
    QWidget& m_window;
    QTimer m_next;
};

}  // namespace rlx
