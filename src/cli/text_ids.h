#pragma once

#include "shell/text_id.h"

/// Command line.
namespace rlx {

inline constexpr TextId kTextSettingNotWritten = 42000;
inline constexpr TextId kTextNoSuchText = 42001;
inline constexpr TextId kTextNoSuchCity = 42002;
inline constexpr TextId kTextSeveralCities = 42003;

}  // namespace rlx
