#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "weather/forecast.h"

namespace rlx {

/// Either the days of a reply or what is wrong with it, in one line.
struct ParsedOpenMeteo {
    std::optional<Forecast> forecast = {};  ///< its days only: source, issue time and place are the caller's to tell
    std::optional<double> latitude = {};    ///< of the grid cell, when the reply tells it
    std::optional<double> longitude = {};
    std::string fault = {};
};

/// Reads the daily part of a reply of Open-Meteo's forecast API (https://open-meteo.com/en/docs): parallel arrays in
/// "daily", their units in "daily_units". `time` must be there; any other variable may be missing, and so may be single
/// values (null). Refused are: what is no JSON object, an error object (with its reason), arrays of different lengths,
/// days that do not follow each other or are not 1 to `kMaxForecastDays`, values of another type, another unit than
/// degrees Celsius, millimetres, percent, km/h and degrees, and a reply without any code or temperature. The older
/// spelling "weathercode" is taken too. Takes any bytes.
ParsedOpenMeteo ParseOpenMeteo(std::string_view json);

}  // namespace rlx
