#pragma once

#include <filesystem>
#include <string>
#include <vector>

#include "platform/file_system.h"
#include "shell/texts.h"
#include "skins/skin_validator.h"

namespace rlx {

/// One line of the list of skins.
struct SkinEntry {
    std::u16string text;         ///< the skin's name, or its file's name where it has none
    std::filesystem::path file;  ///< empty for the entry that says that there are none
    std::vector<SkinFault> faults;
};

/// The line of one skin file, also of one that cannot be read.
SkinEntry SkinEntryOf(IFileSystem& files, const std::filesystem::path& file);

/// The skins of a folder ("*.skn", letter case ignored), then those of the folders in it, one level deep, by file name.
/// Where there are none, the single entry that says so.
std::vector<SkinEntry> ListSkins(IFileSystem& files, const std::filesystem::path& folder, const ITexts& texts);

}  // namespace rlx
