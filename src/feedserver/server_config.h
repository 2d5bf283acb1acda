#pragma once

#include <chrono>
#include <cstdint>
#include <filesystem>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace rlx {

enum class SourceKind { kEcbRates, kDailyRates, kRssNews, kNewsFolder };

/// Where facts come from: a web address (http, https) or a path of this machine.
struct FeedSource {
    SourceKind kind = SourceKind::kDailyRates;
    std::string from;
};

enum class WeatherKind {
    kOpenMeteo,  ///< a web address that speaks Open-Meteo's forecast API
    kFolder,     ///< a folder of its replies, one `<feed name>.json` for each city
    kSample,     ///< no forecast at all, only the sample
    kNone        ///< no weather
};

/// Open-Meteo's public service: no key, data under CC BY 4.0.
inline constexpr char kPublicWeather[] =
    "https://api.open-meteo.com/v1/forecast?latitude={latitude}&longitude={longitude}&timezone={timezone}"
    "&forecast_days=7&daily=weather_code,temperature_2m_max,temperature_2m_min,precipitation_sum,"
    "precipitation_probability_max,wind_speed_10m_max,wind_direction_10m_dominant,relative_humidity_2m_mean,"
    "sunrise,sunset";

/// Where forecasts come from.
struct WeatherConfig {
    WeatherKind kind = WeatherKind::kOpenMeteo;
    std::string from = kPublicWeather;  ///< address with {latitude}, {longitude} and perhaps {timezone}, or a folder
    bool sample = true;                 ///< the sample stands in while there is no forecast
};

struct ServerConfig {
    std::vector<FeedSource> rates;  ///< a later one overrides an earlier one
    std::optional<FeedSource> news;
    WeatherConfig weather;
    std::chrono::minutes every{60};
    std::filesystem::path keep;  ///< folder of the last good answers; empty: they are not kept
};

/// Either a configuration or what is wrong with it, in one line that names the place.
struct ParsedConfig {
    std::optional<ServerConfig> config;
    std::string fault;
};

/// Reads {"rates": [{"kind": "ecb"|"daily", "from": "..."}], "news": {"kind": "rss"|"folder", "from": "..."},
/// "weather": {"kind": "open-meteo"|"folder"|"sample"|"none", "from": "...", "sample": false}, "everyMinutes": 60,
/// "keep": "/var/lib/..."}; all members may be left out, unknown ones are faults. Takes any bytes.
ParsedConfig ParseServerConfig(std::string_view json);

/// "127.0.0.1:8765", "[::1]:8765".
struct ListenAddress {
    std::string host;
    std::uint16_t port = 0;
};
std::optional<ListenAddress> ParseListenAddress(std::string_view text);

}  // namespace rlx
