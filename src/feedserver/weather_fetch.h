#pragma once

#include <atomic>
#include <functional>
#include <optional>
#include <string>

#include "feedserver/forecast_cities.h"
#include "feedserver/server_config.h"
#include "feedserver/source_reader.h"
#include "weather/forecast.h"

namespace rlx {

/// Gives what an address or a file holds, and ends early when `stop` becomes true. Called from several threads at once.
using WeatherReader = std::function<SourceBytes(const std::string& from, const std::atomic<bool>& stop)>;

/// Either a forecast that every client can read, or what is wrong, in one line.
struct FetchedForecast {
    std::optional<Forecast> forecast = {};
    std::string fault = {};
    bool reached = true;  ///< false when the source could not be connected to at all
};

/// The address or file of a city's forecast; `config` is of a kind that has one.
std::string ForecastAddress(const WeatherConfig& config, const ForecastCity& city);

/// Asks the source and checks before it believes: the reply is about that position (to one degree) and about days from
/// today on, and a client can read what is made of it. The source does not tell when it made the forecast: issued
/// counts as the moment of asking, of a file as the time of its last change. Waits.
FetchedForecast FetchForecast(const WeatherConfig& config, const ForecastCity& city, const WeatherReader& reader,
                              const std::atomic<bool>& stop, const DateTime& utcNow);

}  // namespace rlx
