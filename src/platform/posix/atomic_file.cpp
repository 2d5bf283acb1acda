#include "platform/posix/atomic_file.h"

#include <fcntl.h>
#include <sys/file.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>
#include <ctime>
#include <string_view>
#include <system_error>

namespace rlx {

namespace {

namespace fs = std::filesystem;

constexpr int kMostLinks = 40;

/// Where a chain of links ends; the end need not exist. Empty when the links go round in a circle.
fs::path FollowLinks(fs::path file) {
    std::error_code error;
    for (int i = 0; i < kMostLinks; ++i) {
        if (!fs::is_symlink(fs::symlink_status(file, error))) return file;
        const fs::path target = fs::read_symlink(file, error);
        if (error) return {};
        file = file.parent_path() / target;  // an absolute target replaces the folder
    }
    return {};
}

fs::path FolderOf(const fs::path& file) {
    return file.has_parent_path() ? file.parent_path() : fs::path(".");
}

constexpr std::string_view kTemporaryPrefix = ".rlx-";

/// Removes what a program left that was killed while it wrote. Who still writes holds a lock; between making a file and
/// locking it nobody needs a minute.
void RemoveLeftovers(const fs::path& folder) {
    constexpr std::time_t kYoung = 60;  // seconds
    std::error_code error;
    for (fs::directory_iterator entry(folder, error), end; !error && entry != end; entry.increment(error)) {
        const fs::path& file = entry->path();
        if (!file.filename().native().starts_with(kTemporaryPrefix)) continue;
        const CDescriptor descriptor(::open(file.c_str(), O_RDONLY | O_NOFOLLOW | O_NONBLOCK | O_CLOEXEC));
        struct stat status {};
        const bool old = descriptor.IsOpen() && ::fstat(descriptor.Number(), &status) == 0 && S_ISREG(status.st_mode) &&
                         std::time(nullptr) - status.st_mtime > kYoung;
        if (old && ::flock(descriptor.Number(), LOCK_EX | LOCK_NB) == 0) ::unlink(file.c_str());
    }
}

/// A new file in `folder`, with the permissions that the process gives to new files; its path goes to `name`.
CDescriptor MakeTemporary(const fs::path& folder, std::string& name) {
    constexpr int kMostTries = 1000;
    for (int i = 0; i < kMostTries; ++i) {
        name =
            (folder / (std::string(kTemporaryPrefix) + std::to_string(::getpid()) + "-" + std::to_string(i))).string();
        const int number = ::open(name.c_str(), O_WRONLY | O_CREAT | O_EXCL | O_CLOEXEC, 0666);
        if (number >= 0) ::flock(number, LOCK_EX | LOCK_NB);
        if (number >= 0 || errno != EEXIST) return CDescriptor(number);
    }
    return CDescriptor(-1);
}

/// Gives `descriptor` the permissions of the file that it will replace. False where something else than a file stands.
bool TakeMode(const fs::path& target, const CDescriptor& descriptor) {
    struct stat status {};
    if (::stat(target.c_str(), &status) != 0) return errno == ENOENT;
    return S_ISREG(status.st_mode) && ::fchmod(descriptor.Number(), status.st_mode & 07777U) == 0;
}

}  // namespace

CAtomicFile::CAtomicFile(const fs::path& file) : m_target(FollowLinks(file)), m_descriptor(-1) {
    if (!m_target.has_filename()) return;
    m_descriptor = MakeTemporary(FolderOf(m_target), m_temporary);
    m_made = m_descriptor.IsOpen();
    m_sound = m_made && TakeMode(m_target, m_descriptor);
    if (m_made) RemoveLeftovers(FolderOf(m_target));
}

CAtomicFile::~CAtomicFile() {
    if (m_made && !m_renamed) ::unlink(m_temporary.c_str());
}

bool CAtomicFile::Write(std::string_view bytes) {
    m_sound = m_sound && m_descriptor.Write(bytes);
    return m_sound;
}

bool CAtomicFile::Commit() {
    if (!m_sound || !m_descriptor.Sync() || !m_descriptor.Close()) return false;
    m_renamed = ::rename(m_temporary.c_str(), m_target.c_str()) == 0;
    if (m_renamed) SyncFolder(FolderOf(m_target));
    return m_renamed;
}

}  // namespace rlx
