#pragma once

#include <filesystem>
#include <string>
#include <vector>

#include "shell/application_folder.h"
#include "shell/language_list.h"

namespace rlx {

/// A file that may be a module, and whether the list of languages has it already.
struct ModuleFile {
    std::u16string name;
    bool installed = false;

    friend bool operator==(const ModuleFile&, const ModuleFile&) = default;
};

/// The files of a folder whose names match "Roamly*.dll", letter case ignored, sorted by name. None is opened.
std::vector<ModuleFile> ListModules(IFileSystem& files, const std::filesystem::path& folder,
                                    const CLanguageList& languages);

enum class InstallOutcome {
    kInstalled,
    kInUse,             ///< it is the module that this run has loaded: nothing happened
    kAlreadyInstalled,  ///< the list has a file of that name
    kNotAModule,        ///< a library without dialog 318, or something else altogether
    kNotReadable,       ///< no such file, over 4 MB, or not readable
    kNameRefused,       ///< the name does not match "Roamly*.dll" or would break the list
    kListFull,          ///< the list would be longer than 1,499 characters
    kListNotReadable,   ///< "langs.dat" is there and cannot be read
    kNotSaved,          ///< the module or the list could not be written
    kNotRemovable,      ///< files cannot be removed from the chosen folder
    kNotRemoved,        ///< installed, but the chosen file is still there
};

struct InstallRequest {
    std::filesystem::path folder;  ///< the chosen folder
    std::u16string module;         ///< file name in it
    bool remove = false;           ///< "Remove file after install"
    std::u16string inUse;          ///< file name of the module that this run has loaded; empty for the built-in texts
};

/// Puts a module into `LangsRes` and its language into "langs.dat". Installing from `LangsRes` itself copies nothing.
/// Whatever fails, but for `kNotRemoved`, leaves every file as it was.
InstallOutcome InstallLanguage(IFileSystem& files, const CApplicationFolder& folder, const ITexts& texts,
                               const InstallRequest& request);

/// What to tell a person of an outcome; empty for `kInUse`.
std::u16string InstallMessage(InstallOutcome outcome, const InstallRequest& request, const ITexts& texts);

}  // namespace rlx
