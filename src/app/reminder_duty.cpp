#include "app/reminder_duty.h"

#include <QCoreApplication>
#include <QDir>
#include <QStandardPaths>

#include "base/text.h"
#include "clocks/text_ids.h"
#include "shell/program_paths.h"
#include "shell/text_ids.h"
#include "uikit/qt_text.h"

namespace rlx {

namespace {

CUserTimer::Plan PlanOf(const CReminderDuty::Run& run, const ITexts& texts) {
    const QString configuration = QStandardPaths::writableLocation(QStandardPaths::GenericConfigLocation);
    CUserTimer::Plan plan;
    plan.folder = std::filesystem::path(configuration.toStdString()) / "systemd" / "user";
    plan.description = ToUtf8(texts.Text(kTextReminder));
    // The session's environment may be another one than this program's, so the store is named.
    plan.command = {QCoreApplication::applicationFilePath().toStdString(), "--remind", "--store",
                    std::filesystem::absolute(DeviceStoreFile(run.store)).string()};
    if (!run.home.empty()) {
        plan.command.emplace_back("--home");
        plan.command.push_back(std::filesystem::absolute(run.home).string());
    }
    return plan;
}

}  // namespace

CReminderDuty::CReminderDuty(const Ports& ports, const Run& run)
    : m_notifier(ToQString(ports.texts.Text(kTextAppName))),
      m_post({ports.registry, ports.cities, ports.clock, m_notifier, ports.texts}),
      m_timer(ports.files, m_services, PlanOf(run, ports.texts)),
      m_timed(!run.otherClock && (run.store.empty() || m_timer.IsOurs())) {}

void CReminderDuty::ArmTimer() {
    if (m_timed) m_timer.Arm(m_post.Waiting());
}

}  // namespace rlx
