#include "weather/place_forecast.h"

#include <algorithm>

#include "base/text.h"

namespace rlx {

std::span<const ForecastDay> PlaceForecast::DaysToShow() const {
    if (!stored) return {};
    std::span<const ForecastDay> days = stored->forecast.days;
    if (!IsOver()) days = days.subspan(freshness.daysGone);
    return days.first(std::min(days.size(), kOverviewDays));
}

bool PlaceForecast::IsOver() const {
    return stored && freshness.daysGone >= stored->forecast.days.size();
}

bool IsSample(const Forecast& forecast) {
    return FoldCase(forecast.source).find(FoldCase(u"sample")) != std::u16string::npos;
}

PlaceForecast CPlaceForecasts::Of(CityIndex city) {
    const auto clock = m_times.WorldClock(city, m_times.Now());
    PlaceForecast result{
        city, m_cities.GetPlace(city), clock.name, clock.country, {clock.year, clock.month, clock.day}, {}, {}};
    if (!result.place.empty()) result.stored = m_store.Find(result.place);
    if (result.stored) result.freshness = FreshnessOf(result.stored->forecast, UtcNow(), result.today);
    return result;
}

DateTime CPlaceForecasts::UtcNow() {
    const auto now = m_times.Now();
    return UtcOf(now, m_times.Reference(now));
}

}  // namespace rlx
