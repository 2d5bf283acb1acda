#pragma once

#include <cstddef>
#include <filesystem>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "base/byte_stream.h"

namespace rlx {

/// Files of the application folder and of folders that a person picks. Paths are the host's. Used from one thread.
class IFileSystem {
public:
    virtual ~IFileSystem() = default;

    /// Null when the file cannot be opened or is not a regular file.
    virtual std::unique_ptr<IByteStream> OpenRead(const std::filesystem::path& file) = 0;

    /// The whole file; nothing when it cannot be read or is larger than `limit` bytes.
    virtual std::optional<std::string> ReadFile(const std::filesystem::path& file, std::size_t limit) = 0;

    /// Writes beside the file, flushes to the disk, then renames: the file holds the old or the new bytes, never a
    /// mixture. False leaves the old file as it was.
    virtual bool WriteFile(const std::filesystem::path& file, std::string_view bytes) = 0;

    virtual bool IsFile(const std::filesystem::path& file) = 0;
    virtual bool IsFolder(const std::filesystem::path& folder) = 0;

    /// True when files can be made in the folder.
    virtual bool IsWritableFolder(const std::filesystem::path& folder) = 0;

    /// The names (not paths) of the regular files of a folder, sorted; empty when it cannot be read.
    virtual std::vector<std::string> ListFiles(const std::filesystem::path& folder) = 0;

    /// The names of the folders in a folder, sorted; empty when it cannot be read.
    virtual std::vector<std::string> ListFolders(const std::filesystem::path& folder) = 0;

    /// Creates the folder and those above it; true when it is there afterwards.
    virtual bool CreateFolder(const std::filesystem::path& folder) = 0;

    /// Copies the bytes over whatever `to` was, as `WriteFile` does.
    virtual bool CopyFile(const std::filesystem::path& from, const std::filesystem::path& to) = 0;

    /// Renames, across file systems too. False leaves `from` where it was.
    virtual bool MoveFile(const std::filesystem::path& from, const std::filesystem::path& to) = 0;

    /// True when no such file is there afterwards.
    virtual bool RemoveFile(const std::filesystem::path& file) = 0;
};

}  // namespace rlx
