#pragma once

#include <cstddef>
#include <optional>
#include <string>

#include "platform/http_session.h"

namespace rlx {

inline constexpr std::size_t kMaxReplyCharacters = 255'999;
inline constexpr std::size_t kMaxReplyLine = 1'024;

/// Reads a reply's body line by line, each byte one character, line ends kept; a line longer than `kMaxReplyLine`
/// arrives in pieces of that length. The line that would bring the whole above `kMaxReplyCharacters` and all behind it
/// are dropped. Nothing when the transfer failed.
std::optional<std::u16string> ReadReplyBody(IHttpReply& reply);

}  // namespace rlx
