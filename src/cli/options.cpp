#include "cli/options.h"

#include <charconv>
#include <string_view>

namespace rlx::cli {

namespace {

/// Takes `digits` decimal digits and the mark behind them off the front.
bool TakeNumber(std::string_view& text, std::size_t digits, char mark, int& value) {
    if (text.size() < digits) return false;
    const char* end = text.data() + digits;
    if (text.front() == '-' || text.front() == '+') return false;
    const auto [stop, error] = std::from_chars(text.data(), end, value);
    if (error != std::errc{} || stop != end) return false;
    text.remove_prefix(digits);
    if (mark == '\0') return true;
    if (text.empty() || text.front() != mark) return false;
    text.remove_prefix(1);
    return true;
}

bool TakeDate(std::string_view& text, char mark, Date& date) {
    return TakeNumber(text, 4, '-', date.year) && TakeNumber(text, 2, '-', date.month) &&
           TakeNumber(text, 2, mark, date.day) && IsValid(date);
}

}  // namespace

std::optional<Date> ParseDate(const std::string& text) {
    std::string_view rest = text;
    Date date;
    if (!TakeDate(rest, '\0', date) || !rest.empty()) return std::nullopt;
    return date;
}

std::optional<DateTime> ParseDateTime(const std::string& text) {
    std::string_view rest = text;
    DateTime time;
    if (!TakeDate(rest, 'T', time.date) || !TakeNumber(rest, 2, ':', time.hour)) return std::nullopt;
    if (!TakeNumber(rest, 2, '\0', time.minute)) return std::nullopt;
    if (!rest.empty()) {
        if (rest.front() != ':') return std::nullopt;
        rest.remove_prefix(1);
        if (!TakeNumber(rest, 2, '\0', time.second)) return std::nullopt;
    }
    if (!rest.empty() || !IsValid(time)) return std::nullopt;
    return time;
}

}  // namespace rlx::cli
