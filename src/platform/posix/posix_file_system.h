#pragma once

#include "platform/file_system.h"

namespace rlx {

/// The host's file system. A write to a link replaces what the link leads to. A file that is written over keeps its
/// permissions.
class CPosixFileSystem : public IFileSystem {
public:
    std::unique_ptr<IByteStream> OpenRead(const std::filesystem::path& file) override;
    std::optional<std::string> ReadFile(const std::filesystem::path& file, std::size_t limit) override;
    bool WriteFile(const std::filesystem::path& file, std::string_view bytes) override;
    bool IsFile(const std::filesystem::path& file) override;
    bool IsFolder(const std::filesystem::path& folder) override;
    bool IsWritableFolder(const std::filesystem::path& folder) override;
    std::vector<std::string> ListFiles(const std::filesystem::path& folder) override;
    std::vector<std::string> ListFolders(const std::filesystem::path& folder) override;
    bool CreateFolder(const std::filesystem::path& folder) override;
    bool CopyFile(const std::filesystem::path& from, const std::filesystem::path& to) override;
    bool MoveFile(const std::filesystem::path& from, const std::filesystem::path& to) override;
    bool RemoveFile(const std::filesystem::path& file) override;
};

}  // namespace rlx
