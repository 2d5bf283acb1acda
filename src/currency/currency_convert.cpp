#include "currency/currency_convert.h"

#include <algorithm>
#include <cmath>

#include "base/number.h"

namespace rlx {

namespace {

constexpr double kExponentFrom = 1e15;
constexpr int kMostDecimals = 15;

bool IsDigit(char16_t unit) {
    return unit >= u'0' && unit <= u'9';
}

bool IsGroupMark(char16_t unit) {
    return unit == u' ' || unit == u'\'' || unit == u'_' || unit == 0xA0 || unit == 0x2019 || unit == 0x202F;
}

std::u16string WithoutGroupMarks(std::u16string_view text) {
    std::u16string plain;
    for (std::size_t i = 0; i < text.size(); ++i) {
        const bool between = i > 0 && i + 1 < text.size() && IsDigit(text[i - 1]) && IsDigit(text[i + 1]);
        if (!between || !IsGroupMark(text[i])) plain.push_back(text[i]);
    }
    return plain;
}

}  // namespace

std::optional<double> RateValue(std::u16string_view rate) {
    const double value = ParseNumber(rate);
    return std::isfinite(value) && value > 0 ? std::optional(value) : std::nullopt;
}

std::optional<double> Convert(double amount, std::u16string_view fromRate, std::u16string_view toRate) {
    const std::optional<double> from = RateValue(fromRate);
    const std::optional<double> to = RateValue(toRate);
    if (!from || !to || !std::isfinite(amount)) return std::nullopt;
    const double result = *from == *to ? amount : amount / *from * *to;
    return std::isfinite(result) ? std::optional(result) : std::nullopt;
}

std::optional<double> ParseAmount(std::u16string_view text) {
    const std::u16string plain = WithoutGroupMarks(text);
    if (std::none_of(plain.begin(), plain.end(), IsDigit)) return std::nullopt;
    const double value = ParseNumber(plain);
    return std::isfinite(value) ? std::optional(value) : std::nullopt;
}

std::u16string FormatAmount(double amount) {
    const double size = std::fabs(amount);
    if (!(size < kExponentFrom)) return FormatGeneral(amount, kMostDecimals);
    if (size >= 1 || size == 0) return FormatFixed(size == 0 ? 0.0 : amount, 2);
    const int leadingZeros = static_cast<int>(-std::floor(std::log10(size))) - 1;
    return leadingZeros + 4 > kMostDecimals ? FormatGeneral(amount, 4) : FormatFixed(amount, leadingZeros + 4);
}

}  // namespace rlx
