#include "base/number.h"

#include <array>
#include <charconv>
#include <cmath>
#include <limits>
#include <system_error>

#include "base/text.h"

namespace rlx {

namespace {

bool IsBlank(char16_t unit) {
    return unit == u' ' || (unit >= u'\t' && unit <= u'\r');
}

std::u16string_view SkipBlanks(std::u16string_view text) {
    while (!text.empty() && IsBlank(text.front()))
        text.remove_prefix(1);
    return text;
}

/// Takes one sign off the front; true for "-".
bool TakeSign(std::u16string_view& text) {
    if (text.empty() || (text.front() != u'-' && text.front() != u'+')) return false;
    const bool negative = text.front() == u'-';
    text.remove_prefix(1);
    return negative;
}

bool IsDigit(char16_t unit) {
    return unit >= u'0' && unit <= u'9';
}

/// The ASCII stretch at the front of `text` that may belong to a number.
std::string NumberCharacters(std::u16string_view text) {
    std::string characters;
    for (const char16_t unit : text) {
        if (unit >= 0x7F || unit <= u' ') break;
        characters.push_back(static_cast<char>(unit));
    }
    return characters;
}

bool IsHexadecimal(const std::string& digits) {
    if (digits.size() < 3 || digits[0] != '0' || (digits[1] != 'x' && digits[1] != 'X')) return false;
    const char next = digits[2] == '.' && digits.size() > 3 ? digits[3] : digits[2];
    return std::isxdigit(static_cast<unsigned char>(next)) != 0;
}

/// from_chars gives no value when the number is out of range: too large is an infinity, too small is zero.
double OutOfRange(const char* begin, const char* end, bool hexadecimal) {
    const char mark = hexadecimal ? 'p' : 'e';
    for (const char* at = begin; at != end; ++at) {
        if ((*at | 0x20) == mark && at + 1 != end && at[1] == '-') return 0.0;
    }
    for (const char* at = begin; at != end && *at != '.' && (*at | 0x20) != mark; ++at) {
        if (*at != '0') return std::numeric_limits<double>::infinity();
    }
    for (const char* at = begin; at != end; ++at) {
        if ((*at | 0x20) == mark) return std::numeric_limits<double>::infinity();
    }
    return 0.0;
}

std::u16string Formatted(double value, std::chars_format format, int precision) {
    std::array<char, 512> buffer{};
    if (std::isnan(value)) return u"nan";
    if (std::isinf(value)) return value < 0 ? u"-inf" : u"inf";
    const auto [end, error] = std::to_chars(buffer.data(), buffer.data() + buffer.size(), value, format, precision);
    if (error != std::errc{}) return u"";
    return Widen({buffer.data(), static_cast<std::size_t>(end - buffer.data())});
}

}  // namespace

std::int32_t ParseInteger(std::u16string_view text) {
    text = SkipBlanks(text);
    const bool negative = TakeSign(text);
    std::int64_t value = 0;
    constexpr std::int64_t kBeyond = std::int64_t{1} << 32;
    for (; !text.empty() && IsDigit(text.front()) && value < kBeyond; text.remove_prefix(1)) {
        value = value * 10 + (text.front() - u'0');
    }
    if (negative) value = -value;
    constexpr std::int64_t kLow = std::numeric_limits<std::int32_t>::min();
    constexpr std::int64_t kHigh = std::numeric_limits<std::int32_t>::max();
    return static_cast<std::int32_t>(value < kLow ? kLow : value > kHigh ? kHigh : value);
}

double ParseNumber(std::u16string_view text) {
    text = SkipBlanks(text);
    const bool negative = TakeSign(text);
    const std::string characters = NumberCharacters(text);
    if (characters.empty() || characters.front() == '-' || characters.front() == '+') return 0.0;
    const bool hexadecimal = IsHexadecimal(characters);
    const char* begin = characters.data() + (hexadecimal ? 2 : 0);
    const char* end = characters.data() + characters.size();
    double value = 0.0;
    const auto [stop, error] =
        std::from_chars(begin, end, value, hexadecimal ? std::chars_format::hex : std::chars_format::general);
    if (error == std::errc::invalid_argument) return 0.0;
    if (error == std::errc::result_out_of_range) value = OutOfRange(begin, stop, hexadecimal);
    return negative ? -value : value;
}

std::optional<std::int64_t> ParseWholeInteger(std::u16string_view text, std::int64_t low, std::int64_t high) {
    const std::string digits = NumberCharacters(text);
    if (digits.size() != text.size()) return std::nullopt;
    const bool plus = !digits.empty() && digits.front() == '+' && digits.size() > 1 && digits[1] != '-';
    std::int64_t value = 0;
    const char* end = digits.data() + digits.size();
    const auto [stop, error] = std::from_chars(digits.data() + (plus ? 1 : 0), end, value);
    if (error != std::errc{} || stop != end || value < low || value > high) return std::nullopt;
    return value;
}

std::u16string FormatInteger(std::int64_t value) {
    return Widen(std::to_string(value));
}

std::u16string FormatTwoDigits(int value) {
    return (value < 10 ? u"0" : u"") + FormatInteger(value);
}

std::u16string FormatFixed(double value, int decimals) {
    return Formatted(value, std::chars_format::fixed, decimals);
}

std::u16string FormatGeneral(double value, int digits) {
    return Formatted(value, std::chars_format::general, digits);
}

}  // namespace rlx
