#pragma once

#include <optional>
#include <string>

#include "platform/file_system.h"

namespace rlx {

/// Bytes of a source, or why there are none.
struct SourceBytes {
    std::optional<std::string> bytes;
    std::string fault;
};

inline constexpr std::size_t kMaxSourceBytes = 4U << 20;

/// Fetches what a source gives: a web address with status 200, or a file. At most `kMaxSourceBytes`, within a minute.
/// `kind` is a word that must stand in the content type of a web reply ("xml", "json"). Waits.
SourceBytes ReadSourceBytes(IFileSystem& files, const std::string& from, const std::string& kind);

}  // namespace rlx
