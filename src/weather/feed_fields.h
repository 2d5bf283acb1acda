#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "weather/forecast.h"

/// The single fields of a weather reply, see docs/formats/weather-feed.md. Pure functions, any thread. A text that is
/// not exactly of the form gives nothing.
namespace rlx {

/// The most characters of a source or a feed name in a reply.
inline constexpr std::size_t kMaxFeedText = 120;

/// "-3.5": an optional minus, digits, optionally "." and digits; nothing outside [low, high].
std::optional<double> ParseFeedDecimal(std::u16string_view text, double low, double high);

/// "07:05"
std::optional<TimeOfDay> ParseFeedTime(std::u16string_view text);

/// "2026-11-22"
std::optional<Date> ParseFeedDate(std::u16string_view text);

/// "2026-11-22T06:00Z"
std::optional<DateTime> ParseFeedInstant(std::u16string_view text);

/// One decimal, never "-0.0".
std::u16string FormatFeedDecimal(double value);
std::u16string FormatFeedTime(const TimeOfDay& time);

/// Years 0 to 9999.
std::u16string FormatFeedDate(const Date& date);

/// Seconds are dropped.
std::u16string FormatFeedInstant(const DateTime& utc);

/// A text as it may stand in a reply: what is not printable ASCII, and "#", becomes "?"; cut to `kMaxFeedText`.
std::u16string FeedText(std::u16string_view text);

}  // namespace rlx
