#pragma once

#include <optional>
#include <string>
#include <string_view>

/// Conversion between currencies whose rates are units per US dollar. Pure functions, any thread.
namespace rlx {

/// The number that a rate text begins with; nothing when it is not a positive, finite number, which means "unknown".
std::optional<double> RateValue(std::u16string_view rate);

/// `amount` of the first currency in the second, through the dollar: amount / fromRate * toRate in double precision.
/// Nothing when a rate is unknown, or the amount or the result is not finite. Equal rates leave the amount as it is.
std::optional<double> Convert(double amount, std::u16string_view fromRate, std::u16string_view toRate);

/// An amount as typed: blanks, apostrophes and underscores between digits are dropped, then the text is read as every
/// number is ("." is the decimal separator). Nothing when there is no digit or the value is not finite.
std::optional<double> ParseAmount(std::u16string_view text);

/// An amount as shown: two decimals from 1 on (in size), four significant digits below, so that "0.0041" is not lost;
/// fifteen digits in exponent form from 1e15 on.
std::u16string FormatAmount(double amount);

}  // namespace rlx
