#include "platform/fake/memory_file_system.h"

#include <utility>

namespace rlx {

namespace {

namespace fs = std::filesystem;

/// "/a/./b/../c/" is "/a/c".
fs::path Plain(const fs::path& path) {
    fs::path plain = path.lexically_normal();
    return plain.has_filename() || plain == "/" ? plain : plain.parent_path();
}

std::string NameIn(const fs::path& folder, const fs::path& path) {
    return path != folder && path.parent_path() == folder ? path.filename().string() : std::string();
}

}  // namespace

void CMemoryFileSystem::AddFolders(fs::path folder) {
    for (; folder.has_relative_path(); folder = folder.parent_path())
        m_folders.insert(folder);
}

void CMemoryFileSystem::Put(const fs::path& file, std::string bytes) {
    AddFolders(Plain(file).parent_path());
    m_files[Plain(file)] = std::move(bytes);
}

void CMemoryFileSystem::MakeReadOnly(const fs::path& folder) {
    m_readOnly.insert(Plain(folder));
}

std::unique_ptr<IByteStream> CMemoryFileSystem::OpenRead(const fs::path& file) {
    const auto found = m_files.find(Plain(file));
    return found == m_files.end() ? nullptr : std::make_unique<CMemoryStream>(found->second);
}

std::optional<std::string> CMemoryFileSystem::ReadFile(const fs::path& file, std::size_t limit) {
    const auto found = m_files.find(Plain(file));
    if (found == m_files.end() || found->second.size() > limit) return std::nullopt;
    return found->second;
}

bool CMemoryFileSystem::CanHold(const fs::path& file) {
    return IsWritableFolder(Plain(file).parent_path()) && !IsFolder(file);
}

bool CMemoryFileSystem::WriteFile(const fs::path& file, std::string_view bytes) {
    if (!Allows() || !CanHold(file)) return false;
    m_files[Plain(file)] = std::string(bytes);
    return true;
}

bool CMemoryFileSystem::IsFile(const fs::path& file) {
    return m_files.count(Plain(file)) != 0;
}

bool CMemoryFileSystem::IsFolder(const fs::path& folder) {
    return m_folders.count(Plain(folder)) != 0;
}

bool CMemoryFileSystem::IsWritableFolder(const fs::path& folder) {
    return IsFolder(folder) && m_readOnly.count(Plain(folder)) == 0;
}

std::vector<std::string> CMemoryFileSystem::ListFiles(const fs::path& folder) {
    std::vector<std::string> names;
    for (const auto& [path, bytes] : m_files) {
        const std::string name = NameIn(Plain(folder), path);
        if (!name.empty()) names.push_back(name);
    }
    return names;
}

std::vector<std::string> CMemoryFileSystem::ListFolders(const fs::path& folder) {
    std::vector<std::string> names;
    for (const fs::path& path : m_folders) {
        const std::string name = NameIn(Plain(folder), path);
        if (!name.empty()) names.push_back(name);
    }
    return names;
}

bool CMemoryFileSystem::CreateFolder(const fs::path& folder) {
    if (IsFolder(folder)) return true;
    if (!Allows()) return false;
    for (fs::path above = Plain(folder); above.has_relative_path(); above = above.parent_path()) {
        if (IsFile(above) || m_readOnly.count(above) != 0) return false;
    }
    AddFolders(Plain(folder));
    return true;
}

bool CMemoryFileSystem::CopyFile(const fs::path& from, const fs::path& to) {
    if (!Allows() || !IsFile(from) || !CanHold(to)) return false;
    m_files[Plain(to)] = std::string(m_files[Plain(from)]);
    return true;
}

bool CMemoryFileSystem::MoveFile(const fs::path& from, const fs::path& to) {
    if (!Allows() || !IsFile(from) || !CanHold(to)) return false;
    if (Plain(from) == Plain(to)) return true;
    m_files[Plain(to)] = std::move(m_files[Plain(from)]);
    m_files.erase(Plain(from));
    return true;
}

bool CMemoryFileSystem::RemoveFile(const fs::path& file) {
    if (!Allows() || IsFolder(file)) return false;
    m_files.erase(Plain(file));
    return true;
}

}  // namespace rlx
