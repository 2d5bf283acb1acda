#pragma once

#include <string_view>

namespace rlx {

/// What the key of the weather icons holds for the program's own set.
inline constexpr std::u16string_view kDefaultIconSetValue = u"default";

/// The folder of the program's own set, below the application folder.
inline constexpr std::u16string_view kDefaultIconSetFolder = u"\\wiconset\\";

/// The entry of the program's own set in the list of sets, as the editor writes it.
inline constexpr std::u16string_view kDefaultIconSetEntry = u".Default icons set";

/// True for any of the names of the program's own set.
constexpr bool IsDefaultIconSet(std::u16string_view name) {
    const auto bare = kDefaultIconSetFolder.substr(0, kDefaultIconSetFolder.size() - 1);
    return name == kDefaultIconSetValue || name == kDefaultIconSetFolder || name == bare ||
           name == kDefaultIconSetEntry;
}

}  // namespace rlx
