#pragma once

#include <functional>
#include <optional>
#include <string>
#include <vector>

#include "clocks/reminder_clock.h"
#include "clocks/reminder_store.h"
#include "platform/message_boxes.h"
#include "platform/notifier.h"
#include "shell/texts.h"

namespace rlx {

/// Tells of reminders whose time has come, each once: whoever tells of one claims it in the settings first, so that two
/// windows, or a window and the run of a timer, never both do. References must outlive it. Used from one thread; a
/// message box may let other calls in while it waits.
class CReminderPost {
public:
    struct Ports {
        IRegistry& registry;
        CCityDatabase& cities;
        const IClock& clock;
        INotifier& notifier;
        const ITexts& texts;
    };

    explicit CReminderPost(const Ports& ports);

    /// Tells of every reminder that is due as a notification. One that the desktop does not take is shown in a box;
    /// with no `boxes` it stays due.
    void TellDue(IMessageBoxes* boxes);

    /// Lists the reminders that were missed, all in one box; none, no box. Those that came due within the last minute
    /// are left to `TellDue`.
    void TellMissed(IMessageBoxes& boxes);

    /// When the reminders that still wait come, in UTC, earliest first.
    std::vector<DateTime> Waiting();

private:
    CReminderClock Clock();
    std::optional<StoredReminder> ClaimDue(std::size_t number, CReminderClock& clock, bool missedOnly);
    std::u16string TextOf(const StoredReminder& stored, CReminderClock& clock);

    Ports m_ports;
    CReminderStore m_store;
};

}  // namespace rlx
