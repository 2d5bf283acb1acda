#include "app/reminder_commands.h"

#include <QCoreApplication>
#include <algorithm>

#include "clocks/ui/reminders_dialog.h"

namespace rlx {

namespace {

// A timer does not see the machine sleep, nor its clock or zone change: none waits longer than this, in seconds.
constexpr std::int64_t kLongestWait = 60;

// Aiming behind the second keeps a timer that fires a little early from firing twice.
constexpr int kBehindTheSecond = 15;  // milliseconds

}  // namespace

CReminderCommands::CReminderCommands(const ReminderPorts& ports, CReminderDuty& duty, CClocksScreen& screen,
                                     QWidget& window)
    : m_ports(ports), m_duty(duty), m_screen(screen), m_window(window) {
    m_next.setSingleShot(true);
    m_next.setTimerType(Qt::PreciseTimer);
    connect(&m_next, &QTimer::timeout, this, &CReminderCommands::Check);
    m_screen.SetOpenReminders([this](std::optional<CityIndex> city) { Open(city); });
    connect(QCoreApplication::instance(), &QCoreApplication::aboutToQuit, this, [this] { m_duty.ArmTimer(); });
    m_screen.SetWaitingReminders(static_cast<int>(m_duty.Post().Waiting().size()));
}

void CReminderCommands::Start() {
    Aim();
}

void CReminderCommands::TellMissed() {
    m_duty.Post().TellMissed(m_ports.boxes);
    Check();
}

/// The next wait begins before a box may stand in the way.
void CReminderCommands::Check() {
    Aim();
    m_duty.Post().TellDue(&m_ports.boxes);
    Aim();
    m_duty.ArmTimer();
}

/// With no reminder that waits there is nothing to wake up for.
void CReminderCommands::Aim() {
    const std::vector<DateTime> waiting = m_duty.Post().Waiting();
    m_screen.SetWaitingReminders(static_cast<int>(waiting.size()));
    m_next.stop();
    if (waiting.empty()) return;
    const std::int64_t left = SecondNumber(waiting.front()) - SecondNumber(m_ports.clock.UtcNow());
    const auto seconds = static_cast<int>(std::clamp<std::int64_t>(left, 1, kLongestWait));
    m_next.start(seconds * 1000 - m_ports.clock.Now().millisecond + kBehindTheSecond);
}

void CReminderCommands::Open(std::optional<CityIndex> city) {
    CRemindersDialog dialog(m_ports, &m_window);
    connect(&dialog, &CRemindersDialog::Changed, this, &CReminderCommands::Check);
    if (city) dialog.SetFor(*city);
    dialog.exec();
}

}  // namespace rlx
