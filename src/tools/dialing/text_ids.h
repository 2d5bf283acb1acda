#pragma once

#include "shell/text_id.h"

/// Dialing and area codes.
namespace rlx {

inline constexpr TextId kTextToolDialing = 40602;

inline constexpr TextId kTextInternationalCodes = 40800;
inline constexpr TextId kTextUsAreaCodes = 40801;
inline constexpr TextId kTextCanadaAreaCodes = 40802;
inline constexpr TextId kTextKeyword = 40803;
inline constexpr TextId kTextColumnCountry = 40804;
inline constexpr TextId kTextColumnCode = 40805;
inline constexpr TextId kTextColumnGmt = 40806;
inline constexpr TextId kTextColumnCity = 40807;
inline constexpr TextId kTextColumnRegion = 40808;

}  // namespace rlx
