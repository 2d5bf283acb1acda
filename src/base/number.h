#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

/// Numbers held as text. "." is the only decimal separator, whatever the locale; nothing here throws.
namespace rlx {

/// Decimal integer at the start of `text`: blanks are skipped, one sign is allowed, reading stops at the first
/// character that is not a digit; no digits give 0. Values beyond the range are clamped to it.
std::int32_t ParseInteger(std::u16string_view text);

/// A number at the start of `text` as the C library reads it in the "C" locale: blanks skipped, a sign, digits with
/// ".", an exponent, hexadecimal floats, "inf" and "nan". Reading stops at the first character that cannot continue the
/// number; text that does not begin with a number gives 0. Overflow gives an infinity, underflow 0 or a subnormal.
double ParseNumber(std::u16string_view text);

/// The whole of `text` as a decimal integer within [low, high], with an optional sign and nothing else.
std::optional<std::int64_t> ParseWholeInteger(std::u16string_view text, std::int64_t low, std::int64_t high);

/// printf("%d").
std::u16string FormatInteger(std::int64_t value);

/// Two digits at least: a "0" in front of any value below 10, negative ones included (-1 gives "0-1").
std::u16string FormatTwoDigits(int value);

/// printf("%.<decimals>f") in the "C" locale; infinities and not-a-number give "inf", "-inf", "nan".
std::u16string FormatFixed(double value, int decimals);

/// printf("%.<digits>g") in the "C" locale: the shorter of fixed and exponent notation, no trailing zeros.
std::u16string FormatGeneral(double value, int digits);

}  // namespace rlx
