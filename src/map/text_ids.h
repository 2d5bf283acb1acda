#pragma once

#include "shell/text_id.h"

/// World Map and sun.
namespace rlx {

inline constexpr TextId kTextDayLength = 40302;
inline constexpr TextId kTextSunDoesNotRise = 40303;
inline constexpr TextId kTextSunDoesNotSet = 40304;
inline constexpr TextId kTextRiseAndSet = 40307;
inline constexpr TextId kTextMapClock = 40311;
inline constexpr TextId kTextMapNow = 40313;
inline constexpr TextId kTextMapTip = 40314;
inline constexpr TextId kTextMapImageMissing = 40315;
inline constexpr TextId kTextImageBroken = 40316;
inline constexpr TextId kTextMapMarginTooWide = 40317;
inline constexpr TextId kTextMapToday = 40318;
inline constexpr TextId kTextMapTomorrow = 40319;
inline constexpr TextId kTextMapDay = 40320;
inline constexpr TextId kTextMapYear = 40321;
inline constexpr TextId kTextMapScrubber = 40324;
inline constexpr TextId kTextMapPicture = 40325;

}  // namespace rlx
