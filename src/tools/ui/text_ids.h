#pragma once

#include "shell/text_id.h"

/// The frame of the Tools screen.
namespace rlx {

inline constexpr TextId kTextBackToTools = 40600;

}  // namespace rlx
