#pragma once

#include <filesystem>
#include <string>
#include <vector>

#include "platform/file_system.h"
#include "shell/texts.h"
#include "skins/skin_schema.h"

namespace rlx {

enum class SkinFaultKind {
    kFileNotOpened,
    kSectionMissing,
    kKeyMissing,
    kNotAColour,
    kNoBackslash,   ///< the value of a path does not begin with a backslash
    kLeavesFolder,  ///< the path leads out of the skin's folder
    kFolderMissing,
    kFileMissing,
};

/// One failed check. What does not apply is empty.
struct SkinFault {
    SkinFaultKind kind = SkinFaultKind::kFileNotOpened;
    std::u16string_view section;  ///< a name of the schema
    std::u16string_view key;      ///< a name of the schema
    std::u16string value;         ///< as it stands in the file; for a missing file the path below the skin's folder

    friend bool operator==(const SkinFault&, const SkinFault&) = default;
};

/// Runs every check of a skin, in the order of the schema; a skin without faults is valid. A colour must be a whole
/// decimal number of digits only, at most 32 bits wide. The pictures BP, BL and BS stand in the folders P, L and S;
/// those that all layouts share are looked for in P, else in the skin's folder itself; of IF the folder alone must
/// exist. The checks of a section that is missing are one fault.
std::vector<SkinFault> ValidateSkin(IFileSystem& files, const std::filesystem::path& skinFile);

/// One line for a person.
std::u16string FaultText(const SkinFault& fault, const ITexts& texts);

}  // namespace rlx
