#include "feedserver/sample_weather.h"

#include <cmath>
#include <cstdint>
#include <numbers>

#include "astro/rise_set.h"
#include "base/text.h"
#include "weather/feed_fields.h"

namespace rlx {

namespace {

constexpr int kSampleDays = 7;
constexpr double kSecondsPerHour = 3600;
constexpr long kMinutesPerDay = 1440;

/// Numbers from 0 to 1 that depend on the city and the day only.
class CDraw {
public:
    CDraw(const std::string& feedName, const Date& date) {
        for (const char byte : feedName + Narrow(FormatFeedDate(date)))
            m_state = (m_state ^ static_cast<unsigned char>(byte)) * 0x100000001B3ULL;  // FNV-1a
    }

    double Next() {
        // The finalizer of SplitMix64 (Steele, Lea, Flood 2014) spreads neighbouring dates apart.
        std::uint64_t mixed = m_state += 0x9E3779B97F4A7C15ULL;
        mixed = (mixed ^ (mixed >> 30)) * 0xBF58476D1CE4E5B9ULL;
        mixed = (mixed ^ (mixed >> 27)) * 0x94D049BB133111EBULL;
        return static_cast<double>((mixed ^ (mixed >> 31)) >> 11) * 0x1.0p-53;
    }

private:
    std::uint64_t m_state = 0xCBF29CE484222325ULL;
};

/// Mean temperature of the day in degrees Celsius: 28 at the equator, less with the square of the latitude, a yearly
/// swing that grows with the latitude and is highest three weeks after midsummer.
double UsualTemperature(double latitude, const Date& date) {
    constexpr int kWarmestDay = 200;
    const double phase = 2 * std::numbers::pi * (DayOfYear(date) - kWarmestDay) / 365.25;
    return 28 - 0.0068 * latitude * latitude + 0.2 * latitude * std::cos(phase);
}

/// How many of the days are wet: many at the equator, few in the desert belts, two of five in the middle latitudes.
double WetShare(double latitude) {
    const double distance = std::abs(latitude);
    if (distance < 10) return 0.55;
    if (distance < 20) return 0.35;
    return distance < 33 ? 0.15 : 0.4;
}

int WetCode(double millimetres, double mean, bool tropical) {
    if (mean < 1) return millimetres < 2 ? 71 : millimetres < 6 ? 73 : 75;
    if (tropical && millimetres > 6) return 95;
    if (millimetres < 1) return 51;
    return millimetres < 4 ? 61 : millimetres < 9 ? 63 : 65;
}

int DryCode(double draw) {
    if (draw < 0.3) return 0;
    return draw < 0.5 ? 1 : draw < 0.75 ? 2 : 3;
}

double Rounded(double value) {
    return std::round(value * 10) / 10;
}

std::optional<TimeOfDay> ClockOf(double hours) {
    if (!std::isfinite(hours)) return std::nullopt;
    const long minutes = std::lround((hours - std::floor(hours / 24) * 24) * 60) % kMinutesPerDay;
    return TimeOfDay{static_cast<int>(minutes / 60), static_cast<int>(minutes % 60)};
}

void AddSun(const ForecastCity& city, double zoneHours, ForecastDay& day) {
    const RiseSet sun = SunRiseAndSet(day.date, {static_cast<int>(std::lround(city.latitude)),
                                                 static_cast<int>(std::lround(city.longitude)), zoneHours});
    if (sun.kind != DayKind::kNormal) return;
    day.sunrise = ClockOf(sun.sunriseHours);
    day.sunset = ClockOf(sun.sunsetHours);
}

ForecastDay SampleDay(const ForecastCity& city, const Date& date) {
    CDraw draw(city.feedName, date);
    ForecastDay day;
    day.date = date;
    const double mean = UsualTemperature(city.latitude, date) + 6 * (draw.Next() - 0.5);
    const bool wet = draw.Next() < WetShare(city.latitude);
    const double half = (wet ? 2.5 : 4.0) + 2 * draw.Next();
    day.high = Rounded(mean + half);
    day.low = Rounded(mean - half);
    const double amount = draw.Next();
    day.precipitation = wet ? Rounded(0.3 + 13 * amount * amount) : 0.0;
    const double kind = draw.Next();
    day.code = wet ? WetCode(*day.precipitation, mean, std::abs(city.latitude) < 23.5) : DryCode(kind);
    const double chance = draw.Next();
    day.probability = static_cast<int>(wet ? 50 + 45 * chance : 30 * chance);
    day.windSpeed = Rounded(6 + 24 * draw.Next());
    day.windDirection = static_cast<int>(360 * draw.Next());
    day.humidity = static_cast<int>((wet ? 72 : 45) + 23 * draw.Next());
    return day;
}

}  // namespace

Forecast SampleForecast(const ForecastCity& city, const DateTime& utcNow) {
    const auto offset = UtcOffsetOf(city, utcNow);
    const Date today = AddSeconds(utcNow, offset).date;
    Forecast forecast{kSampleSource, utcNow, Widen(city.feedName), {}};
    forecast.issued.second = forecast.issued.millisecond = 0;
    for (int i = 0; i < kSampleDays; ++i) {
        forecast.days.push_back(SampleDay(city, AddDays(today, i)));
        AddSun(city, static_cast<double>(offset) / kSecondsPerHour, forecast.days.back());
    }
    return forecast;
}

}  // namespace rlx
