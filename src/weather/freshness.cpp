#include "weather/freshness.h"

#include <algorithm>
#include <cstdlib>

namespace rlx {

DateTime UtcOf(const DateTime& now, const ClockOffset& reference) {
    const std::int64_t hours = reference.hours;
    std::int64_t minutes = reference.minutes;
    if (hours != 0) minutes = hours < 0 ? -std::abs(minutes) : std::abs(minutes);
    return AddSeconds(now, -(hours * 60 + minutes) * 60);
}

Freshness FreshnessOf(const Forecast& forecast, const DateTime& utcNow, const Date& cityToday) {
    constexpr std::int64_t kLimit = std::int64_t{kStaleAfterHours} * 60;
    Freshness result;
    result.ageInMinutes = (SecondNumber(utcNow) - SecondNumber(forecast.issued)) / 60;
    result.daysGone = static_cast<std::size_t>(std::ranges::count_if(
        forecast.days, [&](const auto& day) { return DayNumber(day.date) < DayNumber(cityToday); }));
    result.stale =
        result.ageInMinutes > kLimit || result.ageInMinutes < -kLimit || result.daysGone == forecast.days.size();
    return result;
}

DayName NameOfDay(const Date& day, const Date& cityToday, bool stale) {
    if (stale) return DayName::kDate;
    if (day == cityToday) return DayName::kToday;
    return day == AddDays(cityToday, 1) ? DayName::kTomorrow : DayName::kDate;
}

}  // namespace rlx
