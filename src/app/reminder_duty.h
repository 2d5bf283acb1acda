#pragma once

#include <string>

#include "app/desktop_notifier.h"
#include "app/systemd_services.h"
#include "clocks/reminder_post.h"
#include "clocks/user_timer.h"

namespace rlx {

/// What the window and the run of the session's timer share: telling of reminders, and the timer itself. References
/// must outlive it.
class CReminderDuty {
public:
    struct Ports {
        IFileSystem& files;
        IRegistry& registry;
        CCityDatabase& cities;
        const IClock& clock;
        const ITexts& texts;
    };

    /// What this run was started with.
    struct Run {
        std::string store;        ///< value of `--store`, or empty
        std::string home;         ///< value of `--home`, or empty
        bool otherClock = false;  ///< the device's clock is not the machine's
    };

    /// The session's timer serves one device store. A run with another clock, or with a store that is neither the usual
    /// one nor the timer's, leaves it alone.
    CReminderDuty(const Ports& ports, const Run& run);

    CReminderPost& Post() { return m_post; }

    /// Makes the session's timer fire for the reminders that wait.
    void ArmTimer();

private:
    CDesktopNotifier m_notifier;
    CReminderPost m_post;
    CSystemdServices m_services;
    CUserTimer m_timer;
    const bool m_timed;
};

}  // namespace rlx
