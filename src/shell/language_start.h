#pragma once

#include <cstdint>
#include <optional>
#include <string>

#include "shell/application_folder.h"
#include "shell/registry_store.h"
#include "shell/resources.h"

namespace rlx {

/// What a start does about the language.
enum class LanguageState {
    kBuiltIn,   ///< goes on with the built-in texts
    kModule,    ///< goes on with those of a module
    kAskFirst,  ///< nobody has chosen yet: the Language dialog, then the setting again
    kFailed,    ///< the module cannot be loaded: a message, the Language dialog, and the run ends
};

struct LanguageStart {
    LanguageState state = LanguageState::kBuiltIn;
    std::u16string module;  ///< the file name that was looked for; empty when none was
    CResources resources;   ///< those of the module with `kModule`, else the built-in ones
};

/// The language of the setting `lang`, as every start finds it: 0 and the module name "none" are the built-in texts,
/// anything else is looked up in "langs.dat" and loaded from `LangsRes`. An index that the list does not hold fails
/// like a module that is not there.
LanguageStart StartLanguage(IFileSystem& files, const CApplicationFolder& folder, CRegistryStore& settings);

/// The same for a setting that has been read. Nothing: it is missing.
LanguageStart StartLanguage(IFileSystem& files, const CApplicationFolder& folder, std::optional<std::uint32_t> lang);

/// The setting `lang`; nothing when it is missing.
std::optional<std::uint32_t> LanguageSetting(CRegistryStore& settings);

/// Writes the setting. False when the device refuses.
bool WriteLanguageSetting(CRegistryStore& settings, std::uint32_t lang);

/// The resources of a module file: a library of at most 4 MB with a dialog 318. Nothing for any other file.
std::optional<CResources> LoadLanguageModule(IFileSystem& files, const std::filesystem::path& file);

/// The path of a file in `LangsRes`; nothing when the name leads out of it.
std::optional<std::filesystem::path> ModulePath(const CApplicationFolder& folder, std::u16string_view module);

/// The module folder itself, which need not be there yet.
std::filesystem::path ModuleFolder(const CApplicationFolder& folder);

}  // namespace rlx
