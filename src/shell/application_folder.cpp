#include "shell/application_folder.h"

#include <utility>

#include "shell/device_path.h"

namespace rlx {
namespace {

// The installed data is three folders deep; the limit ends a walk through a link that leads back up.
constexpr int kMaxDepth = 8;

bool CopyMissing(IFileSystem& files, const std::filesystem::path& from, const std::filesystem::path& to, int depth) {
    if (!files.CreateFolder(to)) return false;
    bool complete = true;
    for (const auto& name : files.ListFiles(from)) {
        if (!files.IsFile(to / name)) complete = files.CopyFile(from / name, to / name) && complete;
    }
    if (depth == kMaxDepth) return complete;
    for (const auto& name : files.ListFolders(from)) {
        complete = CopyMissing(files, from / name, to / name, depth + 1) && complete;
    }
    return complete;
}

}  // namespace

CApplicationFolder::CApplicationFolder(IFileSystem& files, std::filesystem::path root)
    : m_files(files), m_root(std::move(root)) {}

std::optional<std::filesystem::path> CApplicationFolder::Path(std::u16string_view name) const {
    return ResolveBelow(m_files, m_root, name);
}

FolderChoice ChooseApplicationFolder(const FolderSources& sources, bool executableFolderServes) {
    if (!sources.option.empty()) return {sources.option, false};
    if (!sources.environment.empty()) return {sources.environment, false};
    if (executableFolderServes) return {sources.executableFolder, false};
    return {sources.userDataFolder, true};
}

FolderChoice FindApplicationFolder(IFileSystem& files, const FolderSources& sources) {
    const auto& portable = sources.executableFolder;
    const bool serves = !portable.empty() && files.IsFile(portable / "cities.lst") && files.IsWritableFolder(portable);
    return ChooseApplicationFolder(sources, serves);
}

std::optional<std::filesystem::path> PrepareApplicationFolder(IFileSystem& files, const FolderSources& sources) {
    const auto choice = FindApplicationFolder(files, sources);
    if (!choice.userCopy) return files.IsFolder(choice.folder) ? std::optional(choice.folder) : std::nullopt;
    if (choice.folder.empty() || !CopyMissing(files, sources.installedData, choice.folder, 0)) return std::nullopt;
    return choice.folder;
}

}  // namespace rlx
