#pragma once

#include <cstddef>
#include <cstdint>

#include "weather/forecast.h"

/// How old a forecast is, and what its days may be called. Pure functions, any thread.
namespace rlx {

/// A forecast is stale when it was issued longer ago than this.
inline constexpr int kStaleAfterHours = 12;

struct Freshness {
    bool stale = true;              ///< too old, issued in a future that cannot be, or all its days are over
    std::int64_t ageInMinutes = 0;  ///< since it was issued; negative when it claims to come from the future
    std::size_t daysGone = 0;       ///< how many of its days lie before the city's today
};

/// `utcNow` is the instant in UTC, `cityToday` the date in the forecast's city at that instant.
Freshness FreshnessOf(const Forecast& forecast, const DateTime& utcNow, const Date& cityToday);

/// What a day may be called.
enum class DayName { kDate, kToday, kTomorrow };

/// Days of a stale forecast, and all others than today and tomorrow, are called by their date alone.
DayName NameOfDay(const Date& day, const Date& cityToday, bool stale);

}  // namespace rlx
