#pragma once

#include <optional>
#include <string_view>

#include "weather/forecast.h"

namespace rlx {

/// Why a reply is no forecast.
enum class ReplyFault {
    kNone,
    kTooLong,       ///< more than `kMaxReplyLength` characters
    kNotAscii,      ///< a character that is neither printable ASCII nor a line end
    kNotAForecast,  ///< does not begin with the entry "weather_1"
    kBadEntry,      ///< an entry without "_", a day with too few fields, or a name that came before
    kTruncated,     ///< the closing entry is missing, or counts other days than came
    kBadHeader,     ///< no feed name or source, or the issue time is missing or no time
    kBadDate,       ///< a day is not the day after the one before, or far from the issue time
    kTooManyDays,   ///< more than `kMaxForecastDays`
    kNoValues,      ///< no day, or none that tells the weather or a temperature
};

struct ForecastReading {
    std::optional<Forecast> forecast;
    ReplyFault fault = ReplyFault::kNone;  ///< `kNone` exactly when there is a forecast
};

/// No reply is longer: 16 days take some 1,200 characters.
inline constexpr std::size_t kMaxReplyLength = 16384;

/// Reads a weather reply (docs/formats/weather-feed.md). Takes any text. A value that is missing, malformed or outside
/// of what has ever been measured on earth is left out, and so are high and low when the low is above the high; a reply
/// whose frame is broken gives no forecast at all.
ForecastReading ReadForecast(std::u16string_view reply);

}  // namespace rlx
