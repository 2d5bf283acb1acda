#pragma once

#include "shell/text_id.h"

/// News.
namespace rlx {

inline constexpr TextId kTextNoNews = 41202;
inline constexpr TextId kTextFetchNews = 41203;
inline constexpr TextId kTextNewNews = 41204;
inline constexpr TextId kTextAskOpenLink = 41208;
inline constexpr TextId kTextLargerText = 41224;
inline constexpr TextId kTextSmallerText = 41225;
inline constexpr TextId kTextNewsFetched = 41240;

}  // namespace rlx
