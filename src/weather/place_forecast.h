#pragma once

#include <optional>
#include <span>
#include <string>
#include <vector>

#include "places/city_database.h"
#include "places/city_times.h"
#include "weather/freshness.h"
#include "weather/weather_store.h"

namespace rlx {

/// The stored forecast of one city, and what its own calendar says about it.
struct PlaceForecast {
    CityIndex cityIndex = 0;
    std::u16string place;  ///< "Paris:France"; empty for a city that does not exist
    std::u16string name;
    std::u16string country;
    Date today;                            ///< of the city's own clock
    std::optional<StoredForecast> stored;  ///< nothing before the first update
    Freshness freshness;                   ///< of `stored`

    /// The days to show: those that are not over yet, at most `kOverviewDays`; of a forecast whose days are all over
    /// the first ones. Into `stored`.
    std::span<const ForecastDay> DaysToShow() const;

    /// True when there is a forecast and all its days are over.
    bool IsOver() const;
};

/// True when the source calls its forecast a sample: made up, for trying the program out.
bool IsSample(const Forecast& forecast);

/// Brings cities and their stored forecasts together. References must outlive it. Used from one thread.
class CPlaceForecasts {
public:
    CPlaceForecasts(CCityDatabase& cities, CCityTimes& times, CWeatherStore& store)
        : m_cities(cities), m_times(times), m_store(store) {}

    /// At the instant that the device's clock shows now.
    PlaceForecast Of(CityIndex city);

    /// That instant in UTC.
    DateTime UtcNow();

private:
    CCityDatabase& m_cities;
    CCityTimes& m_times;
    CWeatherStore& m_store;
};

}  // namespace rlx
