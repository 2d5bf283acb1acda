#pragma once

#include <vector>

#include "cli/session.h"
#include "weather/place_forecast.h"
#include "weather/weather_update.h"

namespace rlx::cli {

/// Fetches the forecasts of these cities from the feed server and keeps them; one result for each city. Message boxes
/// have said what went wrong.
std::vector<PlaceUpdate> FetchWeather(CSession& session, CWeatherStore& store, CPlaceForecasts& forecasts,
                                      const std::vector<CityIndex>& cities);

}  // namespace rlx::cli
