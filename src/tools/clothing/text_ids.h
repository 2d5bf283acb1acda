#pragma once

#include "shell/text_id.h"

/// Clothing sizes.
namespace rlx {

inline constexpr TextId kTextToolClothing = 40603;

inline constexpr TextId kTextBras = 40900;
inline constexpr TextId kTextDresses = 40901;
inline constexpr TextId kTextShirts = 40902;
inline constexpr TextId kTextShoes = 40903;
inline constexpr TextId kTextSuits = 40904;
inline constexpr TextId kTextTrousers = 40905;
inline constexpr TextId kTextSizesBras = 40910;
inline constexpr TextId kTextSizesDresses = 40911;
inline constexpr TextId kTextSizesMensShirts = 40912;
inline constexpr TextId kTextSizesBlouses = 40913;
inline constexpr TextId kTextSizesChildrensClothing = 40914;
inline constexpr TextId kTextSizesMensShoes = 40915;
inline constexpr TextId kTextSizesWomensShoes = 40916;
inline constexpr TextId kTextSizesChildrensShoes = 40917;
inline constexpr TextId kTextSizesMensSuits = 40918;
inline constexpr TextId kTextSizesMensTrousers = 40919;
inline constexpr TextId kTextSizesWomensTrousers = 40920;
inline constexpr TextId kTextSizesChildrensTrousers = 40921;
inline constexpr TextId kTextMen = 40930;
inline constexpr TextId kTextWomen = 40931;
inline constexpr TextId kTextChildren = 40932;
inline constexpr TextId kTextSizesGuideline = 40933;
inline constexpr TextId kTextNoSuchGarment = 40934;

}  // namespace rlx
