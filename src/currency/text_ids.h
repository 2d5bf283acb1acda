#pragma once

#include "shell/text_id.h"

/// Currencies.
namespace rlx {

inline constexpr TextId kTextRatesOf = 40500;
inline constexpr TextId kTextRateUnknown = 40501;
inline constexpr TextId kTextSwapCurrencies = 40502;
inline constexpr TextId kTextCurrencySearchHint = 40503;
inline constexpr TextId kTextChooseCurrency = 40504;
inline constexpr TextId kTextRatesShipped = 40505;
inline constexpr TextId kTextNoSuchCurrency = 40506;
inline constexpr TextId kTextNoRates = 40507;
inline constexpr TextId kTextAmountIn = 40509;
inline constexpr TextId kTextNotAnAmount = 40510;
inline constexpr TextId kTextUpdatingRates = 40511;
inline constexpr TextId kTextRateCard = 40520;

}  // namespace rlx
