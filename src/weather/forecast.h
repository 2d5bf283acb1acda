#pragma once

#include <optional>
#include <string>
#include <vector>

#include "base/calendar.h"

/// A weather forecast as plain values. Whatever the source did not tell is an empty optional, never a zero.
namespace rlx {

/// A reading of the city's own clock.
struct TimeOfDay {
    int hour = 0;    ///< 0 to 23
    int minute = 0;  ///< 0 to 59

    friend bool operator==(const TimeOfDay&, const TimeOfDay&) = default;
};

/// One calendar day of the city.
struct ForecastDay {
    Date date;                                 ///< in the city's own zone
    std::optional<int> code = {};              ///< WMO 4677 code, 0 to 99: the day's most telling weather
    std::optional<double> high = {};           ///< degrees Celsius
    std::optional<double> low = {};            ///< degrees Celsius, never above `high`
    std::optional<double> precipitation = {};  ///< millimetres of water
    std::optional<int> probability = {};       ///< of precipitation, percent
    std::optional<double> windSpeed = {};      ///< the day's strongest mean wind, km/h
    std::optional<int> windDirection = {};     ///< where the wind comes from, degrees from north by east, 0 to 359
    std::optional<int> humidity = {};          ///< relative, percent
    std::optional<TimeOfDay> sunrise = {};     ///< none in polar day and polar night
    std::optional<TimeOfDay> sunset = {};      ///< earlier than `sunrise`: in the night that follows

    friend bool operator==(const ForecastDay&, const ForecastDay&) = default;
};

struct Forecast {
    std::u16string source;          ///< who made it, printable ASCII
    DateTime issued;                ///< in UTC, to the minute
    std::u16string placeFeedName;   ///< as `FeedText` writes it
    std::vector<ForecastDay> days;  ///< each the day after the one before, 1 to `kMaxForecastDays`

    friend bool operator==(const Forecast&, const Forecast&) = default;
};

inline constexpr std::size_t kMaxForecastDays = 16;

/// How many days the overview shows.
inline constexpr std::size_t kOverviewDays = 5;

}  // namespace rlx
