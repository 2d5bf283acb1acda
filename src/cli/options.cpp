#include "cli/options.h"

#include <algorithm>
#include <charconv>
#include <string_view>

namespace rlx::cli {

namespace {

/// Whether numbers have all their digits.
enum class Digits { kAll, kAny };

/// Takes a number of `most` decimal digits and the mark behind it off the front.
bool TakeNumber(std::string_view& text, std::size_t most, Digits digits, char mark, int& value) {
    const std::size_t other = std::min(text.find_first_not_of("0123456789"), text.size());
    const std::size_t count = std::min(other, most);
    if (count == 0 || (digits == Digits::kAll && count < most)) return false;
    std::from_chars(text.data(), text.data() + count, value);
    text.remove_prefix(count);
    if (mark == '\0') return true;
    if (text.empty() || text.front() != mark) return false;
    text.remove_prefix(1);
    return true;
}

bool TakeDate(std::string_view& text, Digits digits, char mark, Date& date) {
    return TakeNumber(text, 4, digits, '-', date.year) && TakeNumber(text, 2, digits, '-', date.month) &&
           TakeNumber(text, 2, digits, mark, date.day) && IsValid(date);
}

std::optional<DateTime> ReadDateTime(std::string_view rest, Digits digits) {
    DateTime time;
    if (!TakeDate(rest, digits, 'T', time.date) || !TakeNumber(rest, 2, digits, ':', time.hour)) return std::nullopt;
    if (!TakeNumber(rest, 2, digits, '\0', time.minute)) return std::nullopt;
    if (!rest.empty()) {
        if (rest.front() != ':') return std::nullopt;
        rest.remove_prefix(1);
        if (!TakeNumber(rest, 2, digits, '\0', time.second)) return std::nullopt;
    }
    if (!rest.empty() || !IsValid(time)) return std::nullopt;
    return time;
}

}  // namespace

std::optional<Date> ParseDate(const std::string& text) {
    std::string_view rest = text;
    Date date;
    if (!TakeDate(rest, Digits::kAny, '\0', date) || !rest.empty()) return std::nullopt;
    return date;
}

std::optional<DateTime> ParseDateTime(const std::string& text) {
    return ReadDateTime(text, Digits::kAll);
}

std::optional<DateTime> ParseInstant(const std::string& text) {
    return ReadDateTime(text, Digits::kAny);
}

}  // namespace rlx::cli
