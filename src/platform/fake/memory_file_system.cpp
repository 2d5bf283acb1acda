#include "platform/fake/memory_file_system.h"

#include <algorithm>
#include <utility>

namespace rlx {

namespace {

namespace fs = std::filesystem;

/// "/a/./b/../c/" is "/a/c".
fs::path Plain(const fs::path& path) {
    fs::path plain = path.lexically_normal();
    return plain.has_filename() || plain == "/" ? plain : plain.parent_path();
}

bool IsBelow(const fs::path& path, const fs::path& folder) {
    const fs::path rest = path.lexically_relative(folder);
    return !rest.empty() && *rest.begin() != ".." && *rest.begin() != ".";
}

}  // namespace

std::unique_ptr<IByteStream> CMemoryFileSystem::OpenRead(const fs::path& file) {
    const auto found = files.find(Plain(file));
    return found == files.end() ? nullptr : std::make_unique<CMemoryStream>(found->second);
}

std::optional<std::string> CMemoryFileSystem::ReadFile(const fs::path& file, std::size_t limit) {
    const auto found = files.find(Plain(file));
    if (found == files.end() || found->second.size() > limit) return std::nullopt;
    return found->second;
}

bool CMemoryFileSystem::CanHold(const fs::path& file) {
    return IsWritableFolder(Plain(file).parent_path()) && !readOnly.contains(Plain(file)) && !IsFolder(file);
}

bool CMemoryFileSystem::WriteFile(const fs::path& file, std::string_view bytes) {
    if (!Allows() || !CanHold(file)) return false;
    files[Plain(file)] = std::string(bytes);
    return true;
}

bool CMemoryFileSystem::IsFile(const fs::path& file) {
    return files.count(Plain(file)) != 0;
}

bool CMemoryFileSystem::IsFolder(const fs::path& folder) {
    const fs::path plain = Plain(folder);
    return folders.contains(plain) ||
           std::any_of(folders.begin(), folders.end(), [&](const fs::path& other) { return IsBelow(other, plain); }) ||
           std::any_of(files.begin(), files.end(), [&](const auto& file) { return IsBelow(file.first, plain); });
}

bool CMemoryFileSystem::IsWritableFolder(const fs::path& folder) {
    return IsFolder(folder) && readOnly.count(Plain(folder)) == 0;
}

std::vector<std::string> CMemoryFileSystem::ListFiles(const fs::path& folder) {
    std::vector<std::string> names;
    for (const auto& [path, bytes] : files) {
        if (path.parent_path() == Plain(folder)) names.push_back(path.filename().string());
    }
    return names;
}

std::vector<std::string> CMemoryFileSystem::ListFolders(const fs::path& folder) {
    std::set<fs::path> all = folders;
    for (const auto& [path, bytes] : files)
        all.insert(path.parent_path());
    std::set<std::string> names;
    for (const fs::path& path : all) {
        if (IsBelow(path, Plain(folder))) names.insert(path.lexically_relative(Plain(folder)).begin()->string());
    }
    return {names.begin(), names.end()};
}

bool CMemoryFileSystem::CreateFolder(const fs::path& folder) {
    if (IsFolder(folder)) return true;
    if (!Allows()) return false;
    for (fs::path above = Plain(folder); above.has_relative_path(); above = above.parent_path()) {
        if (IsFile(above) || readOnly.count(above) != 0) return false;
    }
    folders.insert(Plain(folder));
    return true;
}

bool CMemoryFileSystem::CopyFile(const fs::path& from, const fs::path& to) {
    if (!Allows() || !IsFile(from) || !CanHold(to)) return false;
    files[Plain(to)] = std::string(files[Plain(from)]);
    return true;
}

bool CMemoryFileSystem::MoveFile(const fs::path& from, const fs::path& to) {
    if (!Allows() || !IsFile(from) || !CanHold(to)) return false;
    if (Plain(from) == Plain(to)) return true;
    files[Plain(to)] = std::move(files[Plain(from)]);
    folders.insert(Plain(from).parent_path());
    files.erase(Plain(from));
    return true;
}

bool CMemoryFileSystem::RemoveFile(const fs::path& file) {
    if (!Allows() || IsFolder(file)) return false;
    if (files.erase(Plain(file)) != 0) folders.insert(Plain(file).parent_path());
    return true;
}

}  // namespace rlx
