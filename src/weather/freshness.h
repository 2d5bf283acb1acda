#pragma once

#include <cstddef>
#include <cstdint>

#include "places/gmt_offset.h"
#include "weather/forecast.h"

/// How old a forecast is, and what its days may be called. Pure functions, any thread.
namespace rlx {

/// The instant in UTC of a device clock that shows `now` and runs `reference` ahead of GMT. Unlike the clocks, which
/// keep the sign that a time-zone setting gives its minutes, hours and minutes count in the same direction here: 5 and
/// -30 are 5 h 30 min.
DateTime UtcOf(const DateTime& now, const ClockOffset& reference);

/// A forecast is stale when it was issued longer ago than this.
inline constexpr int kStaleAfterHours = 12;

struct Freshness {
    bool stale = true;              ///< too old, issued in a future that cannot be, or all its days are over
    std::int64_t ageInMinutes = 0;  ///< since it was issued; negative when it claims to come from the future
    std::size_t daysGone = 0;       ///< how many of its days lie before the city's today
};

/// `utcNow` is the instant in UTC, `cityToday` the date that the clock of the forecast's city shows then.
Freshness FreshnessOf(const Forecast& forecast, const DateTime& utcNow, const Date& cityToday);

/// What a day may be called.
enum class DayName { kDate, kToday, kTomorrow };

/// Days of a stale forecast, and all others than today and tomorrow, are called by their date alone.
DayName NameOfDay(const Date& day, const Date& cityToday, bool stale);

}  // namespace rlx
