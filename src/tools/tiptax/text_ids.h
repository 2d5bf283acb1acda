#pragma once

#include "shell/text_id.h"

/// Tip and tax.
namespace rlx {

inline constexpr TextId kTextToolTipTax = 40605;

inline constexpr TextId kTextBillAmount = 41100;
inline constexpr TextId kTextTotal = 41101;
inline constexpr TextId kTextService = 41102;
inline constexpr TextId kTextIncludedInBill = 41103;
inline constexpr TextId kTextAddToBill = 41104;
inline constexpr TextId kTextRateRange = 41105;
inline constexpr TextId kTextSplitBetween = 41106;
inline constexpr TextId kTextEachPays = 41107;
inline constexpr TextId kTextTax = 41108;
inline constexpr TextId kTextCannotSplit = 41110;
inline constexpr TextId kTextTwoShares = 41111;
inline constexpr TextId kTextPercent = 41112;

}  // namespace rlx
