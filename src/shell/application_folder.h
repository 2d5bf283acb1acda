#pragma once

#include <filesystem>
#include <optional>
#include <string_view>

#include "platform/file_system.h"

namespace rlx {

/// The folder that stands for the folder of the program on the device: data files, skins, `LangsRes`, and the files
/// that the program writes back. Does not own the file system.
class CApplicationFolder {
public:
    CApplicationFolder(IFileSystem& files, std::filesystem::path root);

    const std::filesystem::path& Root() const { return m_root; }

    /// The host's path of a file named as in u"\\cities.lst"; see `ResolveBelow`.
    std::optional<std::filesystem::path> Path(std::u16string_view name) const;

private:
    IFileSystem& m_files;
    std::filesystem::path m_root;
};

/// Where an application folder may be. An empty path means that there is none of that kind.
struct FolderSources {
    std::filesystem::path option;            // --home
    std::filesystem::path environment;       // $ROAMLYTIX_HOME
    std::filesystem::path executableFolder;  // portable by default
    std::filesystem::path userDataFolder;    // $XDG_DATA_HOME/roamlytix
    std::filesystem::path installedData;     // <prefix>/share/roamlytix
};

struct FolderChoice {
    std::filesystem::path folder;
    bool userCopy = false;  // the user's own copy, to be filled from the installed data

    friend bool operator==(const FolderChoice&, const FolderChoice&) = default;
};

/// The option, else the environment, else the executable's folder if it serves (holds "cities.lst" and can be written),
/// else the user's copy.
FolderChoice ChooseApplicationFolder(const FolderSources& sources, bool executableFolderServes);

/// Chooses the folder and makes it ready: the user's copy is created, and every file of the installed data that it
/// lacks is copied into it; a file that is there is never touched. Nothing when the folder is not there and cannot be
/// made, or a copy failed.
std::optional<std::filesystem::path> PrepareApplicationFolder(IFileSystem& files, const FolderSources& sources);

/// What `PrepareApplicationFolder` would choose, to name it in a message.
FolderChoice FindApplicationFolder(IFileSystem& files, const FolderSources& sources);

}  // namespace rlx
