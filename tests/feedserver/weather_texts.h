#pragma once

#include <string>

namespace rlx::test {

/// Three days of Paris from 22 November 2026, in the form of Open-Meteo's documentation.
inline std::string OpenMeteoReply() {
    return R"({"latitude":48.86,"longitude":2.36,"generationtime_ms":0.12,"utc_offset_seconds":3600,
"timezone":"Europe/Paris","timezone_abbreviation":"CET","elevation":43.0,
"daily_units":{"time":"iso8601","weather_code":"wmo code","temperature_2m_max":"°C","temperature_2m_min":"°C",
"precipitation_sum":"mm","precipitation_probability_max":"%","wind_speed_10m_max":"km/h",
"wind_direction_10m_dominant":"°","relative_humidity_2m_mean":"%","sunrise":"iso8601","sunset":"iso8601"},
"daily":{"time":["2026-11-22","2026-11-23","2026-11-24"],"weather_code":[3,61,95],
"temperature_2m_max":[9.1,10.6,null],"temperature_2m_min":[4.0,6.3,5.5],"precipitation_sum":[0.00,4.20,null],
"precipitation_probability_max":[10,75,null],"wind_speed_10m_max":[14.5,22.0,31.3],
"wind_direction_10m_dominant":[230,250,null],"relative_humidity_2m_mean":[81,88,null],
"sunrise":["2026-11-22T08:14","2026-11-23T08:16","2026-11-24T08:17"],
"sunset":["2026-11-22T17:01","2026-11-23T17:00","2026-11-24T16:59"]}})";
}

}  // namespace rlx::test
