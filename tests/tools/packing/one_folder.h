#pragma once

#include <map>

#include "platform/file_system.h"

namespace rlx::test {

/// The few files of one folder, in memory; writing to the names in `locked` fails.
class COneFolder : public IFileSystem {
public:
    using Path = std::filesystem::path;

    std::map<std::string, std::string> files;
    std::map<std::string, bool> locked;

    std::unique_ptr<IByteStream> OpenRead(const Path&) override { return nullptr; }
    std::optional<std::string> ReadFile(const Path& file, std::size_t limit) override {
        if (!IsFile(file) || files[Name(file)].size() > limit) return std::nullopt;
        return files[Name(file)];
    }
    bool WriteFile(const Path& file, std::string_view bytes) override {
        if (locked[Name(file)]) return false;
        files[Name(file)] = bytes;
        return true;
    }
    bool IsFile(const Path& file) override { return files.contains(Name(file)); }
    bool IsFolder(const Path&) override { return true; }
    bool IsWritableFolder(const Path&) override { return true; }
    std::vector<std::string> ListFiles(const Path&) override { return {}; }
    std::vector<std::string> ListFolders(const Path&) override { return {}; }
    bool CreateFolder(const Path&) override { return true; }
    bool CopyFile(const Path& from, const Path& to) override {
        return IsFile(from) && WriteFile(to, files[Name(from)]);
    }
    bool MoveFile(const Path&, const Path&) override { return false; }
    bool RemoveFile(const Path& file) override { return files.erase(Name(file)) > 0; }

private:
    static std::string Name(const Path& file) { return file.filename().string(); }
};

}  // namespace rlx::test
