#pragma once

#include <filesystem>
#include <string_view>
#include <vector>

#include "platform/file_system.h"

namespace rlx {

/// Where the pictures of the weather can come from. A set is a folder of PNG files named after the conditions
/// (`WeatherCondition::icon`).
struct IconSetSources {
    std::filesystem::path applicationFolder;
    std::filesystem::path skinFolder;  ///< of the skin in force
    std::u16string_view chosen;        ///< the setting "icondir": empty, "default", or a folder as `FindIconSets` names
    std::u16string_view ofSkin;        ///< the skin's WICOF: "default", or a folder below the skin's
};

/// The folder of the set in force: what the user chose, else what the skin names, else the default set "\wiconset" of
/// the application folder. A folder that is not there, or lies outside of its parent, is passed over.
std::filesystem::path ChooseIconSet(IFileSystem& files, const IconSetSources& sources);

/// The sets that can be chosen besides the default one, in the device's way of writing: "\wiconsets\Line".
std::vector<std::u16string> FindIconSets(IFileSystem& files, const std::filesystem::path& applicationFolder);

/// The picture of a condition in a set: its own file, else that of weather that is not known, even when the file is not
/// there.
std::filesystem::path IconFile(IFileSystem& files, const std::filesystem::path& set, std::string_view icon);

}  // namespace rlx
