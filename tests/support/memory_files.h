#pragma once

#include <algorithm>
#include <map>
#include <set>

#include "platform/file_system.h"

namespace rlx::test {

/// A file system in memory with case-sensitive names. Folders are what the files lie in, and those made.
class CMemoryFiles : public IFileSystem {
public:
    std::map<std::filesystem::path, std::string> files;
    std::set<std::filesystem::path> folders;
    std::set<std::filesystem::path> readOnly;  ///< folders, and single files

    std::unique_ptr<IByteStream> OpenRead(const std::filesystem::path& file) override {
        return IsFile(file) ? std::make_unique<CMemoryStream>(files[file]) : nullptr;
    }
    std::optional<std::string> ReadFile(const std::filesystem::path& file, std::size_t limit) override {
        if (!IsFile(file) || files[file].size() > limit) return std::nullopt;
        return files[file];
    }
    bool WriteFile(const std::filesystem::path& file, std::string_view bytes) override {
        if (readOnly.contains(file) || readOnly.contains(file.parent_path())) return false;
        files[file] = std::string(bytes);
        return true;
    }
    bool IsFile(const std::filesystem::path& file) override { return files.contains(file); }
    bool IsFolder(const std::filesystem::path& folder) override {
        return folders.contains(folder) ||
               std::any_of(files.begin(), files.end(), [&](const auto& file) { return Below(file.first, folder) > 0; });
    }
    bool IsWritableFolder(const std::filesystem::path& folder) override {
        return IsFolder(folder) && !readOnly.contains(folder);
    }
    std::vector<std::string> ListFiles(const std::filesystem::path& folder) override { return List(folder, true); }
    std::vector<std::string> ListFolders(const std::filesystem::path& folder) override { return List(folder, false); }
    bool CreateFolder(const std::filesystem::path& folder) override {
        if (readOnly.contains(folder.parent_path())) return false;
        folders.insert(folder);
        return true;
    }
    bool CopyFile(const std::filesystem::path& from, const std::filesystem::path& to) override {
        return IsFile(from) && WriteFile(to, files[from]);
    }
    bool MoveFile(const std::filesystem::path& from, const std::filesystem::path& to) override {
        return CopyFile(from, to) && RemoveFile(from);
    }
    bool RemoveFile(const std::filesystem::path& file) override { return files.erase(file) < 2; }

private:
    /// How many levels `file` lies below `folder`; 0 when it does not.
    static int Below(const std::filesystem::path& file, const std::filesystem::path& folder) {
        const auto rest = file.lexically_relative(folder);
        if (rest.empty() || *rest.begin() == ".." || *rest.begin() == ".") return 0;
        return static_cast<int>(std::distance(rest.begin(), rest.end()));
    }
    std::vector<std::string> List(const std::filesystem::path& folder, bool wantFiles) const {
        std::set<std::string> names;
        for (const auto& [file, bytes] : files) {
            const int levels = Below(file, folder);
            if (levels > 0 && (levels == 1) == wantFiles)
                names.insert(file.lexically_relative(folder).begin()->string());
        }
        return {names.begin(), names.end()};
    }
};

}  // namespace rlx::test
