#pragma once

#include <string>

#include "weather/forecast.h"

namespace rlx {

/// The reply that tells `forecast` (docs/formats/weather-feed.md), printable ASCII and line feeds, as the feed server
/// sends it. Decimal values are rounded to one decimal; `ReadForecast` reads back what was written. Days beyond
/// `kMaxForecastDays` are left out.
std::string WriteForecast(const Forecast& forecast);

}  // namespace rlx
