#include "weather/freshness.h"

#include <algorithm>

namespace rlx {

Freshness FreshnessOf(const Forecast& forecast, const DateTime& utcNow, const Date& cityToday) {
    constexpr std::int64_t kLimit = kStaleAfterHours * 60;
    Freshness result;
    result.ageInMinutes = (SecondNumber(utcNow) - SecondNumber(forecast.issued)) / 60;
    result.daysGone = static_cast<std::size_t>(
        std::ranges::count_if(forecast.days, [&](const auto& day) { return day.date < cityToday; }));
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
