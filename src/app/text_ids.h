#pragma once

#include "shell/text_id.h"

/// The window as a whole.
namespace rlx {

inline constexpr TextId kTextVersion = 40034;
inline constexpr TextId kTextMenu = 40043;

}  // namespace rlx
