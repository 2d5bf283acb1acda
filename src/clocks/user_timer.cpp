#include "clocks/user_timer.h"

#include <utility>

#include "base/iso_day.h"
#include "base/number.h"
#include "base/text.h"

namespace rlx {

namespace {

constexpr std::size_t kUnitLimit = 1U << 16U;

/// "%" begins a specifier in every setting of a unit.
std::string WithoutSpecifiers(const std::string& text) {
    std::string plain;
    for (const char unit : text)
        plain += unit == '%' ? "%%" : std::string(1, unit);
    return plain;
}

/// A word of a command line, safe from the service manager's quoting, variables and specifiers.
std::string Quoted(const std::string& word) {
    std::string quoted = "\"";
    for (const char unit : word) {
        if (unit == '"' || unit == '\\') quoted += '\\';
        if (unit == '$' || unit == '%') quoted += unit;
        quoted += unit == '\n' ? "\\n" : std::string(1, unit);
    }
    return quoted + '"';
}

std::string CalendarText(const DateTime& time) {
    return ToUtf8(IsoDay(time.date) + u" " + FormatTwoDigits(time.hour) + u":" + FormatTwoDigits(time.minute) + u":" +
                  FormatTwoDigits(time.second) + u" UTC");
}

}  // namespace

std::string TimerUnitText(const std::vector<DateTime>& times, const std::string& description) {
    std::string text = "[Unit]\nDescription=" + WithoutSpecifiers(description) + "\n\n[Timer]\n";
    for (const DateTime& time : times)
        text += "OnCalendar=" + CalendarText(time) + "\n";
    return text + "AccuracySec=1s\nPersistent=true\n\n[Install]\nWantedBy=timers.target\n";
}

std::string ServiceUnitText(const std::vector<std::string>& command, const std::string& description) {
    std::string text =
        "[Unit]\nDescription=" + WithoutSpecifiers(description) + "\n\n[Service]\nType=oneshot\nExecStart=";
    for (std::size_t word = 0; word < command.size(); ++word)
        text += (word == 0 ? "" : " ") + Quoted(command[word]);
    return text + "\n";
}

CUserTimer::CUserTimer(IFileSystem& files, IUserServices& services, Plan plan)
    : m_files(files), m_services(services), m_plan(std::move(plan)) {}

bool CUserTimer::IsOurs() {
    return IsWritten(kService, ServiceUnitText(m_plan.command, m_plan.description));
}

bool CUserTimer::Arm(const std::vector<DateTime>& times) {
    if (m_armed == times) return true;
    if (!m_services.IsThere()) return false;
    m_armed = times;  // also when it fails: one try for each change is enough
    return times.empty() ? Remove() : Write(times);
}

bool CUserTimer::IsWritten(const std::string& name, const std::string& text) {
    return m_files.ReadFile(m_plan.folder / name, kUnitLimit) == text;
}

bool CUserTimer::Write(const std::vector<DateTime>& times) {
    const std::string timer = TimerUnitText(times, m_plan.description);
    const std::string service = ServiceUnitText(m_plan.command, m_plan.description);
    if (IsWritten(kTimer, timer) && IsWritten(kService, service)) return true;
    const bool armed = m_files.CreateFolder(m_plan.folder) && m_files.WriteFile(m_plan.folder / kService, service) &&
                       m_files.WriteFile(m_plan.folder / kTimer, timer) && m_services.Order({"daemon-reload"}) &&
                       m_services.Order({"enable", kTimer}) && m_services.Order({"restart", kTimer});
    // A file that stood there would look like a timer that is armed.
    if (!armed) m_files.RemoveFile(m_plan.folder / kTimer);
    return armed;
}

bool CUserTimer::Remove() {
    const auto timer = m_plan.folder / kTimer;
    const auto service = m_plan.folder / kService;
    if (!m_files.IsFile(timer) && !m_files.IsFile(service)) return true;
    m_services.Order({"disable", "--now", kTimer});
    const bool removed = m_files.RemoveFile(timer) && m_files.RemoveFile(service);
    m_services.Order({"daemon-reload"});
    return removed;
}

}  // namespace rlx
