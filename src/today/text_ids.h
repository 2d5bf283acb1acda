#pragma once

#include "shell/text_id.h"

/// Today options and summary.
namespace rlx {

inline constexpr TextId kTextShowCurrencyRates = 33128;

inline constexpr TextId kTextTodayOptions = 41500;

}  // namespace rlx
