#pragma once

#include "shell/text_id.h"

/// Unit converter.
namespace rlx {

inline constexpr TextId kTextBelowAbsoluteZero = 32915;
inline constexpr TextId kTextCategoryAreas = 32916;
inline constexpr TextId kTextCategoryLengths = 32917;
inline constexpr TextId kTextCategoryPressures = 32918;
inline constexpr TextId kTextCategorySpeeds = 32919;
inline constexpr TextId kTextCategoryTemperatures = 32920;
inline constexpr TextId kTextCategoryVolumes = 32921;
inline constexpr TextId kTextCategoryWeights = 32922;
inline constexpr TextId kTextUnitBefore = 32944;
inline constexpr TextId kTextDeleteBefore = 32946;
inline constexpr TextId kTextUnitAfter = 32947;

inline constexpr TextId kTextToolConverter = 40601;
inline constexpr TextId kTextEditUnits = 40700;
inline constexpr TextId kTextUnitName = 40701;
inline constexpr TextId kTextUnitValue = 40702;
inline constexpr TextId kTextConvertFrom = 40703;
inline constexpr TextId kTextConvertTo = 40704;
inline constexpr TextId kTextReset = 40705;
inline constexpr TextId kTextCategoryFull = 40706;
inline constexpr TextId kTextInfinite = 40707;
inline constexpr TextId kTextNotANumber = 40708;
inline constexpr TextId kTextSwapUnits = 40709;
inline constexpr TextId kTextRecentPairs = 40710;
inline constexpr TextId kTextResult = 40712;
inline constexpr TextId kTextMeasure = 40713;
inline constexpr TextId kTextPairOfUnits = 40714;
inline constexpr TextId kTextUnitSearchHint = 40715;
inline constexpr TextId kTextNoRecentPairs = 40716;
inline constexpr TextId kTextNoSuchMeasure = 40717;
inline constexpr TextId kTextUnitNameEmpty = 40720;
inline constexpr TextId kTextUnitsNotEditable = 40721;
inline constexpr TextId kTextUnitsNotSaved = 40722;
inline constexpr TextId kTextUnitNotFound = 40723;
inline constexpr TextId kTextUnitAmbiguous = 40724;
inline constexpr TextId kTextUnitNeedsCategory = 40725;
inline constexpr TextId kTextUnitsOfDifferentCategories = 40726;

}  // namespace rlx
