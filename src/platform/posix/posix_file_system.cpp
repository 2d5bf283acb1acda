#include "platform/posix/posix_file_system.h"

#include <sys/stat.h>
#include <unistd.h>

#include <algorithm>
#include <array>
#include <cerrno>
#include <system_error>
#include <utility>

#include "platform/posix/atomic_file.h"
#include "platform/posix/descriptor.h"

namespace rlx {

namespace {

namespace fs = std::filesystem;

constexpr std::size_t kBlockSize = 65536;

class CFileStream : public IByteStream {
public:
    explicit CFileStream(CDescriptor descriptor) : m_descriptor(std::move(descriptor)) {}
    std::size_t Read(char* buffer, std::size_t size) override { return m_descriptor.Read(buffer, size); }

private:
    CDescriptor m_descriptor;
};

/// The names of the entries of a folder that `accept` takes; links count as what they lead to.
template <typename Accept>
std::vector<std::string> List(const fs::path& folder, Accept accept) {
    std::vector<std::string> names;
    std::error_code error;
    for (fs::directory_iterator it(folder, error), end; !error && it != end; it.increment(error)) {
        std::error_code unknown;
        if (accept(it->status(unknown))) names.push_back(it->path().filename().string());
    }
    if (error) names.clear();
    std::sort(names.begin(), names.end());
    return names;
}

}  // namespace

std::unique_ptr<IByteStream> CPosixFileSystem::OpenRead(const fs::path& file) {
    CDescriptor descriptor = OpenRegularFile(file);
    if (!descriptor.IsOpen()) return nullptr;
    return std::make_unique<CFileStream>(std::move(descriptor));
}

std::optional<std::string> CPosixFileSystem::ReadFile(const fs::path& file, std::size_t limit) {
    CDescriptor descriptor = OpenRegularFile(file);
    if (!descriptor.IsOpen()) return std::nullopt;
    std::string bytes;
    std::array<char, kBlockSize> block;
    bool failed = false;
    while (const std::size_t count = descriptor.Read(block.data(), block.size(), &failed)) {
        if (count > limit - bytes.size()) return std::nullopt;
        bytes.append(block.data(), count);
    }
    if (failed) return std::nullopt;
    return bytes;
}

bool CPosixFileSystem::WriteFile(const fs::path& file, std::string_view bytes) {
    CAtomicFile atomic(file);
    return atomic.Write(bytes) && atomic.Commit();
}

bool CPosixFileSystem::IsFile(const fs::path& file) {
    std::error_code error;
    return fs::is_regular_file(file, error);
}

bool CPosixFileSystem::IsFolder(const fs::path& folder) {
    std::error_code error;
    return fs::is_directory(folder, error);
}

bool CPosixFileSystem::IsWritableFolder(const fs::path& folder) {
    return IsFolder(folder) && ::access(folder.c_str(), W_OK | X_OK) == 0;
}

std::vector<std::string> CPosixFileSystem::ListFiles(const fs::path& folder) {
    return List(folder, [](const fs::file_status& status) { return fs::is_regular_file(status); });
}

std::vector<std::string> CPosixFileSystem::ListFolders(const fs::path& folder) {
    return List(folder, [](const fs::file_status& status) { return fs::is_directory(status); });
}

bool CPosixFileSystem::CreateFolder(const fs::path& folder) {
    std::error_code error;
    fs::create_directories(folder, error);
    return IsFolder(folder);
}

bool CPosixFileSystem::CopyFile(const fs::path& from, const fs::path& to) {
    CDescriptor source = OpenRegularFile(from);
    if (!source.IsOpen()) return false;
    CAtomicFile atomic(to);
    std::array<char, kBlockSize> block;
    bool failed = false;
    while (const std::size_t count = source.Read(block.data(), block.size(), &failed)) {
        if (!atomic.Write({block.data(), count})) return false;
    }
    return !failed && atomic.Commit();
}

bool CPosixFileSystem::MoveFile(const fs::path& from, const fs::path& to) {
    if (!IsFile(from) || IsFolder(to)) return false;
    if (::rename(from.c_str(), to.c_str()) == 0) {
        SyncFolder(to.has_parent_path() ? to.parent_path() : ".");
        return true;
    }
    return errno == EXDEV && CopyFile(from, to) && RemoveFile(from);
}

bool CPosixFileSystem::RemoveFile(const fs::path& file) {
    if (::unlink(file.c_str()) == 0) return true;
    return errno == ENOENT || errno == ENOTDIR;
}

}  // namespace rlx
