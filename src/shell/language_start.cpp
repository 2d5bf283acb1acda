#include "shell/language_start.h"

#include <utility>

#include "shell/device_path.h"
#include "shell/language_list.h"
#include "shell/setting_names.h"

namespace rlx {

std::optional<std::uint32_t> LanguageSetting(CRegistryStore& settings) {
    const auto lang = settings.ReadDword(RootOf(keys::kRoamlytix), keys::kRoamlytix, names::kLanguage);
    return settings.Status() == ReadStatus::kRead ? std::optional(lang) : std::nullopt;
}

bool WriteLanguageSetting(CRegistryStore& settings, std::uint32_t lang) {
    return settings.WriteDword(RootOf(keys::kRoamlytix), keys::kRoamlytix, names::kLanguage, lang);
}

std::filesystem::path ModuleFolder(const CApplicationFolder& folder) {
    return folder.Path(u"\\LangsRes").value_or(folder.Root() / "LangsRes");
}

std::optional<std::filesystem::path> ModulePath(const CApplicationFolder& folder, std::u16string_view module) {
    // A name from the root would be one from the module folder, were it not for the text in front of it.
    if (module.empty() || module.starts_with(u'\\') || module.starts_with(u'/')) return std::nullopt;
    return folder.Path(std::u16string(u"\\LangsRes\\").append(module));
}

std::optional<CResources> LoadLanguageModule(IFileSystem& files, const std::filesystem::path& file) {
    auto bytes = files.ReadFile(file, CResources::kMaxModuleSize);
    return bytes ? CResources::FromModule(*std::move(bytes)) : std::nullopt;
}

LanguageStart StartLanguage(IFileSystem& files, const CApplicationFolder& folder, std::optional<std::uint32_t> lang) {
    LanguageStart start;
    if (!lang) {
        start.state = LanguageState::kAskFirst;
        return start;
    }
    if (*lang == 0) return start;
    start.module = ReadLanguageListAsItIs(files, folder).ModuleAtStart(*lang);
    if (start.module == kBuiltInModule) return start;
    const auto file = ModulePath(folder, start.module);
    auto resources = file ? LoadLanguageModule(files, *file) : std::nullopt;
    start.state = resources ? LanguageState::kModule : LanguageState::kFailed;
    if (resources) start.resources = *std::move(resources);
    return start;
}

LanguageStart StartLanguage(IFileSystem& files, const CApplicationFolder& folder, CRegistryStore& settings) {
    return StartLanguage(files, folder, LanguageSetting(settings));
}

}  // namespace rlx
