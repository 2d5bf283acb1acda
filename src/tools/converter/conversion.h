#pragma once

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>

#include "shell/texts.h"
#include "tools/converter/unit_tables.h"

/// The arithmetic of the converter. Pure functions, any thread.
namespace rlx {

/// `value` in the "to" unit. Factors are read from their texts, so that a text without a number counts as 0; a "to"
/// factor of 0 gives an infinity or not-a-number.
double ConvertLinear(double value, std::u16string_view fromFactor, std::u16string_view toFactor);

/// `from` and `to` are places in the list of temperatures. Nothing when the value lies below 0 K.
std::optional<double> ConvertTemperature(double value, std::size_t from, std::size_t to);

/// Either of the two, by category; nothing below absolute zero. The places must be within the category's list.
std::optional<double> Convert(double value, const UnitTables& tables, std::size_t category, std::size_t from,
                              std::size_t to);

/// 15 significant digits, the shorter of fixed and exponent notation; what is no finite number is told in words.
std::u16string ResultText(double result, const ITexts& texts);

}  // namespace rlx
