#pragma once

#include <array>

#include "places/city_record.h"
#include "truth/zone_clock.h"

/// Why a city's clock may differ from its zone: one predicate for each cause that the documentation names.
namespace rlx::truth {

/// Which of the system's clocks is read.
enum class Clock { kWorld, kReminders, kHome };

/// One zone in the year that is looked at.
struct ZoneYear {
    int year = 0;
    int rulesYear = 0;                ///< the one for which the rules were made
    std::vector<ZoneChange> changes;  ///< from two days before the year to two days behind it
    bool isSettled = false;           ///< changes no clock in the twelve months from the day of the rules on
    bool isOtherRelease = false;      ///< this tz database gives another rule than the list has
    int offset = 0;                   ///< before the first change

    friend auto operator<=>(const ZoneYear&, const ZoneYear&) = default;
};

/// A city's clock at one hour. Offsets in seconds east.
struct Reading {
    Clock clock = Clock::kWorld;
    const CityRecord& city;
    const ZoneYear& zone;
    std::int64_t utc = 0;
    std::int64_t device = 0;  ///< second number of what the device's clock shows
    std::int64_t truth = 0;
    std::int64_t shown = 0;
};

struct Cause {
    const char* name;
    bool (*holds)(const Reading&);
};

constexpr std::size_t kCauses = 12;
extern const std::array<Cause, kCauses> kClockCauses;

}  // namespace rlx::truth
