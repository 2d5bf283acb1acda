#pragma once

#include <filesystem>
#include <optional>

#include "platform/message_boxes.h"
#include "platform/store_outcome.h"
#include "shell/texts.h"

namespace rlx {

/// What the user is told, once a start, of how the device store was opened; nothing when all is well.
std::optional<MessageBox> StoreMessage(StoreOutcome outcome, const std::filesystem::path& file,
                                       const std::optional<std::filesystem::path>& movedAside, const ITexts& texts);

}  // namespace rlx
