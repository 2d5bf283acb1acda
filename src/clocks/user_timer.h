#pragma once

#include <filesystem>
#include <optional>
#include <string>
#include <vector>

#include "base/calendar.h"
#include "platform/file_system.h"
#include "platform/user_services.h"

namespace rlx {

/// The text of a systemd timer that fires at each of `times` (UTC), to the second, once a sleeping machine is awake
/// again at the latest.
std::string TimerUnitText(const std::vector<DateTime>& times, const std::string& description);

/// The text of the systemd service that runs `command`, the program first. Any characters in it arrive as they are.
std::string ServiceUnitText(const std::vector<std::string>& command, const std::string& description);

/// The timer of the person's session that wakes Roamlytix for its reminders while the window is closed. Where no
/// service manager runs it does nothing. References must outlive it. Used from one thread.
class CUserTimer {
public:
    static constexpr const char* kTimer = "roamlytix-reminder.timer";
    static constexpr const char* kService = "roamlytix-reminder.service";

    struct Plan {
        std::filesystem::path folder;      ///< of the person's units
        std::vector<std::string> command;  ///< what the timer runs
        std::string description;           ///< UTF-8, one line
    };

    CUserTimer(IFileSystem& files, IUserServices& services, Plan plan);

    /// True when the timer that is set runs this plan's command.
    bool IsOurs();

    /// Makes the timer fire at these times (UTC) and at no others; without any there is no timer afterwards. False when
    /// that could not be arranged.
    bool Arm(const std::vector<DateTime>& times);

private:
    bool Write(const std::vector<DateTime>& times);
    bool Remove();
    bool IsWritten(const std::string& name, const std::string& text);

    IFileSystem& m_files;
    IUserServices& m_services;
    const Plan m_plan;
    std::optional<std::vector<DateTime>> m_armed;  ///< the times of the last try
};

}  // namespace rlx
