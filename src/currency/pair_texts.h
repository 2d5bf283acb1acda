#pragma once

#include <string>
#include <string_view>

#include "feeds/rates_list.h"
#include "shell/texts.h"

namespace rlx {

/// What a conversion comes to: one of the two is empty, or both.
struct ConvertedText {
    std::u16string result;
    std::u16string hint;  ///< why there is no result; nothing to say of an empty amount
};

/// Converts an amount as it was typed, without blanks at its ends.
ConvertedText ConvertTyped(std::u16string_view typed, const CurrencyEntry& from, const CurrencyEntry& to,
                           const ITexts& texts);

/// "1 USD = 0.88 EUR", or which of the two rates is not known.
std::u16string RateText(const CurrencyEntry& from, const CurrencyEntry& to, const ITexts& texts);

}  // namespace rlx
