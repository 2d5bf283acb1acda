#pragma once

#include <filesystem>
#include <string>

#include "platform/file_system.h"

namespace rlx {

/// The file of the application folder that holds the feed server's address.
inline constexpr char kAddressFile[] = "adrs.cfg";

/// The address of the feed server: every byte of "adrs.cfg" up to the first "*", or all of it when there is none. Empty
/// when the file cannot be read or the address is longer than 511 characters.
std::u16string FeedServerAddress(IFileSystem& files, const std::filesystem::path& applicationFolder);

}  // namespace rlx
