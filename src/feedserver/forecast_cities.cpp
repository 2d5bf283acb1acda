#include "feedserver/forecast_cities.h"

#include <algorithm>
#include <cmath>
#include <optional>
#include <utility>

#include "base/number.h"
#include "base/text.h"
#include "places/city_file.h"
#include "weather/weather_places.h"

namespace rlx {

namespace {

constexpr std::int64_t kSecondsPerHour = 3600;
constexpr std::int64_t kSecondsPerMinute = 60;
constexpr std::size_t kLongestName = 120;

/// The names become names of files, so nothing that leads elsewhere may stand in them.
bool IsFeedName(const std::string& name) {
    const auto fits = [](char c) { return (c >= 'a' && c <= 'z') || (c >= '0' && c <= '9') || c == '-' || c == '_'; };
    return !name.empty() && name.size() <= kLongestName && std::ranges::all_of(name, fits);
}

std::optional<ForecastCity> CityOf(const CityLine& line, std::string feedName) {
    const std::vector<std::u16string> position = Split(line.position, u':');
    if (position.size() != 2 || !IsFeedName(feedName)) return std::nullopt;
    ForecastCity city;
    city.feedName = std::move(feedName);
    city.longitude = ParseNumber(position[0]);
    city.latitude = ParseNumber(position[1]);
    if (!(std::abs(city.latitude) <= 90) || !(std::abs(city.longitude) <= 180)) return std::nullopt;
    city.zone = Narrow(line.zone);
    city.gmt = ParseInteger(line.gmt);
    city.dst = ParseDstRule(line.dstRule);
    return city;
}

}  // namespace

ForecastCities LoadForecastCities(IFileSystem& files, const std::filesystem::path& folder) {
    const auto names = files.OpenRead(folder / "cities.wet");
    const auto positions = files.OpenRead(folder / "cities.lst");
    if (!names || !positions) return {};
    std::map<std::u16string, std::string> feedNames;
    for (const WeatherPlace& place : ReadWeatherPlaces(*names))
        feedNames.emplace(place.place, Narrow(place.feedName));
    ForecastCities cities;
    ReadCityFile(*positions, [&](const CityLine& line) {
        const auto found = feedNames.find(line.place);
        if (found == feedNames.end()) return true;
        if (std::optional<ForecastCity> city = CityOf(line, found->second)) cities[city->feedName] = std::move(*city);
        return true;
    });
    return cities;
}

std::int64_t UtcOffsetOf(const ForecastCity& city, const DateTime& utc) {
    const auto seconds = [](GmtOffset gmt) {
        const ClockOffset split = SplitGmt(gmt);
        return split.hours * kSecondsPerHour + split.minutes * kSecondsPerMinute;
    };
    const DateTime standard = AddSeconds(utc, seconds(city.gmt));
    const int year = standard.date.year;
    // A southern summer begins in the year before.
    const bool summer = IsDstActive(city.dst, standard, year, DstPrecision::kHour) ||
                        IsDstActive(city.dst, standard, year - 1, DstPrecision::kHour);
    return seconds(city.gmt) + (summer ? city.dst.hours * kSecondsPerHour : 0);
}

}  // namespace rlx
