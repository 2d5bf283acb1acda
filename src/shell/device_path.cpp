#include "shell/device_path.h"

#include <algorithm>
#include <string>
#include <vector>

#include "base/text.h"

namespace rlx {
namespace {

bool LeadsOutside(std::u16string_view name) {
    if (name.find(u'\0') != std::u16string_view::npos || name.starts_with(u'/')) return true;
    if (name.starts_with(u"\\\\") || name.starts_with(u"\\/")) return true;
    const auto first = name.find_first_not_of(u'\\');
    const auto drive = first == std::u16string_view::npos ? name : name.substr(first);
    const bool letter =
        !drive.empty() && ((drive[0] >= u'A' && drive[0] <= u'Z') || (drive[0] >= u'a' && drive[0] <= u'z'));
    return letter && drive.size() > 1 && drive[1] == u':';
}

/// The folders and the file of a name; nothing when one is "..".
std::optional<std::vector<std::u16string>> Components(std::u16string_view name) {
    std::u16string slashed(name);
    std::replace(slashed.begin(), slashed.end(), u'\\', u'/');
    std::vector<std::u16string> components;
    for (auto& piece : Split(slashed, u'/')) {
        if (piece == u"..") return std::nullopt;
        if (!piece.empty() && piece != u".") components.push_back(std::move(piece));
    }
    return components;
}

bool Exists(IFileSystem& files, const std::filesystem::path& path) {
    return files.IsFile(path) || files.IsFolder(path);
}

std::optional<std::string> IgnoringCase(const std::vector<std::string>& names, std::u16string_view wanted) {
    for (const auto& name : names) {
        if (EqualIgnoringCase(FromUtf8(name), wanted)) return name;
    }
    return std::nullopt;
}

std::filesystem::path Below(IFileSystem& files, const std::filesystem::path& folder, std::u16string_view name,
                            bool last) {
    auto exact = folder / ToUtf8(name);
    if (Exists(files, exact)) return exact;
    auto found = last ? IgnoringCase(files.ListFiles(folder), name) : std::nullopt;
    if (!found) found = IgnoringCase(files.ListFolders(folder), name);
    return found ? folder / *found : exact;
}

}  // namespace

std::optional<std::filesystem::path> ResolveBelow(IFileSystem& files, const std::filesystem::path& root,
                                                  std::u16string_view name) {
    if (LeadsOutside(name)) return std::nullopt;
    const auto components = Components(name);
    if (!components) return std::nullopt;

    auto exact = root;
    for (const auto& component : *components)
        exact /= ToUtf8(component);
    if (Exists(files, exact)) return exact;

    auto path = root;
    for (std::size_t i = 0; i < components->size(); ++i) {
        path = Below(files, path, (*components)[i], i + 1 == components->size());
    }
    return path;
}

}  // namespace rlx
