#include <algorithm>

#include "base/number.h"
#include "doctor/checks.h"
#include "doctor/text_ids.h"
#include "shell/application_folder.h"
#include "shell/language_list.h"
#include "shell/resources.h"
#include "shell/setting_names.h"
#include "shell/text_ids.h"

namespace rlx {

namespace {

constexpr char kModuleFolder[] = "LangsRes";

bool IsModule(IFileSystem& files, const std::filesystem::path& file) {
    auto bytes = files.ReadFile(file, CResources::kMaxModuleSize);
    return bytes && CResources::FromModule(std::move(*bytes)).has_value();
}

/// Each entry ends with "@", the list with ">".
bool IsWellFormed(const std::string& bytes, std::size_t entries) {
    const std::size_t end = bytes.find('>');
    return end != std::string::npos &&
           static_cast<std::size_t>(std::count(bytes.begin(), bytes.begin() + static_cast<std::ptrdiff_t>(end), '@')) ==
               entries;
}

}  // namespace

void CheckLanguages(const DoctorPorts& ports, CRegistryStore& settings, CDoctorReport& report) {
    const CApplicationFolder folder(ports.files, ports.folder);
    const std::filesystem::path file = LanguageListFile(folder);
    const std::uint32_t chosen = settings.ReadDword(RootOf(keys::kRoamlytix), keys::kRoamlytix, names::kLanguage);
    if (!ports.files.IsFile(file)) return;
    const CLanguageList list = ReadLanguageListAsItIs(ports.files, folder);
    const auto languages = list.Languages();
    const auto bytes = ports.files.ReadFile(file, kMaxDoctorFile);
    if (!bytes || !IsWellFormed(*bytes, languages.size())) report.Add(file, 1, kTextDoctorLanguages);
    for (const Language& language : languages) {
        if (language.module == kBuiltInModule) continue;
        const auto module = folder.Path(u"\\LangsRes\\" + language.module);
        if (!module || !IsModule(ports.files, *module))
            report.Add(module.value_or(ports.folder / kModuleFolder), 0, kTextNotALanguageModule, {language.module});
    }
    if (chosen != 0 && list.ModuleAtStart(chosen).empty())
        report.Add(file, 1, kTextDoctorLanguageChosen, {FormatInteger(chosen)});
}

}  // namespace rlx
