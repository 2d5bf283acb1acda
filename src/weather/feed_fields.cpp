#include "weather/feed_fields.h"

#include <algorithm>

#include "base/number.h"

namespace rlx {
namespace {

bool IsDigit(char16_t c) {
    return c >= u'0' && c <= u'9';
}

/// True when `text` has a digit wherever `shape` has "0" and the shape's own character everywhere else.
bool HasShape(std::u16string_view text, std::u16string_view shape) {
    return std::equal(text.begin(), text.end(), shape.begin(), shape.end(),
                      [](char16_t c, char16_t wanted) { return wanted == u'0' ? IsDigit(c) : c == wanted; });
}

bool IsDecimal(std::u16string_view text) {
    if (text.starts_with(u'-')) text.remove_prefix(1);
    const auto point = text.find(u'.');
    const auto whole = text.substr(0, point);
    const auto fraction = point == std::u16string_view::npos ? u"0" : text.substr(point + 1);
    const auto digits = [](std::u16string_view part) { return !part.empty() && std::ranges::all_of(part, IsDigit); };
    return digits(whole) && digits(fraction);
}

}  // namespace

std::optional<double> ParseFeedDecimal(std::u16string_view text, double low, double high) {
    if (!IsDecimal(text)) return {};
    const double value = ParseNumber(text);
    if (!(value >= low && value <= high)) return {};
    return value == 0 ? 0.0 : value;
}

std::optional<TimeOfDay> ParseFeedTime(std::u16string_view text) {
    if (!HasShape(text, u"00:00")) return {};
    const TimeOfDay time{ParseInteger(text.substr(0, 2)), ParseInteger(text.substr(3, 2))};
    if (time.hour > 23 || time.minute > 59) return {};
    return time;
}

std::optional<Date> ParseFeedDate(std::u16string_view text) {
    if (!HasShape(text, u"0000-00-00")) return {};
    const Date date{ParseInteger(text.substr(0, 4)), ParseInteger(text.substr(5, 2)), ParseInteger(text.substr(8, 2))};
    if (!IsValid(date)) return {};
    return date;
}

std::optional<DateTime> ParseFeedInstant(std::u16string_view text) {
    if (!HasShape(text, u"0000-00-00T00:00Z")) return {};
    const auto date = ParseFeedDate(text.substr(0, 10));
    const auto time = ParseFeedTime(text.substr(11, 5));
    if (!date || !time) return {};
    return DateTime{*date, time->hour, time->minute};
}

std::u16string FormatFeedDecimal(double value) {
    const auto text = FormatFixed(value, 1);
    return text == u"-0.0" ? u"0.0" : text;
}

std::u16string FormatFeedTime(const TimeOfDay& time) {
    return FormatTwoDigits(time.hour) + u":" + FormatTwoDigits(time.minute);
}

std::u16string FormatFeedDate(const Date& date) {
    return FormatTwoDigits(date.year / 100) + FormatTwoDigits(date.year % 100) + u"-" + FormatTwoDigits(date.month) +
           u"-" + FormatTwoDigits(date.day);
}

std::u16string FormatFeedInstant(const DateTime& utc) {
    return FormatFeedDate(utc.date) + u"T" + FormatFeedTime({utc.hour, utc.minute}) + u"Z";
}

std::u16string FeedText(std::u16string_view text) {
    std::u16string result(text.substr(0, kMaxFeedText));
    std::ranges::replace_if(
        result, [](char16_t c) { return c < u' ' || c > u'~' || c == u'#'; }, u'?');
    return result;
}

}  // namespace rlx
