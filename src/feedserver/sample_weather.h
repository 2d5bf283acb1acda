#pragma once

#include "feedserver/forecast_cities.h"
#include "weather/forecast.h"

namespace rlx {

/// What a client reads as the source of a sample.
inline constexpr char16_t kSampleSource[] = u"sample, not a forecast";

/// Seven days that look like weather, so that the program can be tried without a network. **This is not a forecast and
/// has nothing to do with the weather of those days.** Temperatures follow a coarse rule of thumb of latitude and
/// season (no sea, height or wind is in it); rain, clouds, wind and humidity are drawn by a hash of city and date, so
/// that each server gives the same. Only sunrise and sunset are computed, to a few minutes. The first day is today on
/// the city's clock, the issue time is `utcNow`. Pure, any thread.
Forecast SampleForecast(const ForecastCity& city, const DateTime& utcNow);

}  // namespace rlx
