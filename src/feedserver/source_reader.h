#pragma once

#include <atomic>
#include <optional>
#include <string>

#include "platform/file_system.h"

namespace rlx {

/// Bytes of a source, or why there are none.
struct SourceBytes {
    std::optional<std::string> bytes;
    std::string fault = {};
    std::string refusal = {};  ///< the front of the body that came with another status than 200
    bool reached = true;       ///< false when no connection to the other side came about
};

/// How long a web address may take.
struct FetchPatience {
    long connectSeconds = 15;
    long wholeSeconds = 60;
    const std::atomic<bool>* stop = nullptr;  ///< ends the fetch within a second or so once it is true
};

inline constexpr std::size_t kMaxSourceBytes = 4U << 20;

/// Fetches what a source gives: a web address with status 200, or a file. At most `kMaxSourceBytes`, within `patience`.
/// `kind` is a word that must stand in the content type of a web reply ("xml", "json"). Waits.
SourceBytes ReadSourceBytes(IFileSystem& files, const std::string& from, const std::string& kind,
                            const FetchPatience& patience = {});

}  // namespace rlx
