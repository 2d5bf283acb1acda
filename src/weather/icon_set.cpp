#include "weather/icon_set.h"

#include "base/text.h"
#include "shell/device_path.h"
#include "weather/weather_code.h"

namespace rlx {
namespace {

constexpr std::u16string_view kDefault = u"default";
constexpr std::u16string_view kDefaultFolder = u"\\wiconset";
constexpr std::u16string_view kFolderOfSets = u"\\wiconsets";

std::optional<std::filesystem::path> FolderBelow(IFileSystem& files, const std::filesystem::path& root,
                                                 std::u16string_view name) {
    auto folder = ResolveBelow(files, root, name);
    if (folder && !files.IsFolder(*folder)) folder.reset();
    return folder;
}

}  // namespace

std::filesystem::path ChooseIconSet(IFileSystem& files, const IconSetSources& sources) {
    auto fallback = ResolveBelow(files, sources.applicationFolder, kDefaultFolder).value_or("");
    if (sources.chosen == kDefault) return fallback;
    if (!sources.chosen.empty())
        if (const auto folder = FolderBelow(files, sources.applicationFolder, sources.chosen)) return *folder;
    if (sources.ofSkin.empty() || sources.ofSkin == kDefault) return fallback;
    return FolderBelow(files, sources.skinFolder, sources.ofSkin).value_or(fallback);
}

std::vector<std::u16string> FindIconSets(IFileSystem& files, const std::filesystem::path& applicationFolder) {
    std::vector<std::u16string> sets;
    const auto parent = ResolveBelow(files, applicationFolder, kFolderOfSets);
    if (!parent) return sets;
    for (const auto& name : files.ListFolders(*parent))
        if (IsUtf8(name)) sets.push_back(std::u16string(kFolderOfSets) + u"\\" + FromUtf8(name));
    return sets;
}

std::filesystem::path IconFile(IFileSystem& files, const std::filesystem::path& set, std::string_view icon) {
    const auto file = set / (std::string(icon) + ".png");
    return files.IsFile(file) ? file : set / (std::string(kNoWeatherIcon) + ".png");
}

}  // namespace rlx
