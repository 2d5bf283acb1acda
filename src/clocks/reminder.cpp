#include "clocks/reminder.h"

#include <cstdlib>

namespace rlx {

ReminderPhase PhaseOf(const ReminderMark& mark, const DateTime& due, const DateTime& now) {
    if (mark.state == ReminderMark::State::kTold) return ReminderPhase::kTold;
    const std::int64_t second = SecondNumber(now);
    if (second < SecondNumber(due)) return ReminderPhase::kWaiting;
    // A clock that was set back leaves a claim of the future, which is as dead as an old one.
    const bool claimed =
        mark.state == ReminderMark::State::kClaimed && std::llabs(second - SecondNumber(mark.claimedAt)) <= kClaimLasts;
    return claimed ? ReminderPhase::kInHand : ReminderPhase::kDue;
}

bool IsMissed(const DateTime& due, const DateTime& now) {
    return SecondNumber(now) - SecondNumber(due) > kMissedAfter;
}

}  // namespace rlx
