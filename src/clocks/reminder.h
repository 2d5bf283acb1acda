#pragma once

#include <cstddef>
#include <cstdint>
#include <string>

#include "base/calendar.h"

namespace rlx {

inline constexpr std::size_t kReminders = 5;

/// The most characters of a reminder's text.
inline constexpr std::size_t kLongestReminder = 200;

/// What a person wants to be reminded of. It is bound to the clock of a city: when that clock shows `time` it comes.
struct Reminder {
    DateTime time;         ///< whole minutes
    std::u16string place;  ///< `PROP_PLACE` of the city; empty: the home city
    std::u16string text;   ///< may be empty

    friend bool operator==(const Reminder&, const Reminder&) = default;
};

/// What became of a reminder so far.
struct ReminderMark {
    enum class State {
        kWaiting,
        kClaimed,  ///< somebody has set out to tell of it
        kTold,
    };
    State state = State::kWaiting;
    DateTime claimedAt;  ///< UTC; of `kClaimed` alone

    friend bool operator==(const ReminderMark&, const ReminderMark&) = default;
};

/// How a reminder stands at an instant.
enum class ReminderPhase {
    kWaiting,  ///< its time is still to come
    kDue,      ///< its time has come and nobody has told of it
    kInHand,   ///< somebody is telling of it
    kTold,
};

/// A claim that is older than this (seconds) was made by somebody who ended before telling, and counts no more.
inline constexpr std::int64_t kClaimLasts = 60;

/// A reminder that comes later than this (seconds) was missed.
inline constexpr std::int64_t kMissedAfter = 60;

/// `due` and `now` in UTC.
ReminderPhase PhaseOf(const ReminderMark& mark, const DateTime& due, const DateTime& now);

/// True when a reminder that is told of now comes too late to count as come. Both in UTC.
bool IsMissed(const DateTime& due, const DateTime& now);

}  // namespace rlx
