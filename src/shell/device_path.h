#pragma once

#include <filesystem>
#include <optional>
#include <string_view>

#include "platform/file_system.h"

namespace rlx {

/// The host's path of a file that settings, skins or data files name in the device's way, below `root`. "\" separates
/// folders, "/" is understood too, and one leading "\" means `root` itself. Letter case does not matter there: where no
/// file or folder of exactly that name exists, one that differs in case alone is taken; where there is none either, the
/// name stays as it is, so that the file can be made.
///
/// Nothing when the name could lead out of `root`: "..", a drive, a server ("\\..."), a path from the host's root
/// ("/..."), or a zero character. Symbolic links are followed as they stand.
std::optional<std::filesystem::path> ResolveBelow(IFileSystem& files, const std::filesystem::path& root,
                                                  std::u16string_view name);

}  // namespace rlx
