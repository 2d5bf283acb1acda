#pragma once

#include <filesystem>
#include <string>

#include "shell/application_folder.h"

/// Where this run of a program finds its files: options first, then the environment, then the usual places.
namespace rlx {

/// `option`: the value of `--home`, or empty.
FolderSources ProgramFolders(const std::string& option);

/// `option`: the value of `--store`, or empty. Else $ROAMLYTIX_STORE, else "device.db" in the user's data folder.
std::filesystem::path DeviceStoreFile(const std::string& option);

}  // namespace rlx
