#include "platform/posix/atomic_file.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cstdio>
#include <cstdlib>
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

/// What a newly created file gets. Asking means setting, so it is asked once, before there are threads to disturb.
mode_t NewFileMode() {
    static const mode_t kMask = [] {
        const mode_t mask = ::umask(022);
        ::umask(mask);
        return mask;
    }();
    return 0666U & ~kMask;
}

/// The mode that the new file must have; nothing may be written where something else than a file stands.
bool FindMode(const fs::path& target, mode_t& mode) {
    struct stat status {};
    if (::stat(target.c_str(), &status) != 0) {
        mode = NewFileMode();
        return true;
    }
    mode = status.st_mode & 07777U;
    return S_ISREG(status.st_mode);
}

}  // namespace

CAtomicFile::CAtomicFile(const fs::path& file) : m_target(FollowLinks(file)), m_descriptor(-1) {
    mode_t mode = 0;
    if (!m_target.has_filename() || !FindMode(m_target, mode)) return;
    m_temporary = (FolderOf(m_target) / ".rlx-XXXXXX").string();
    m_descriptor = CDescriptor(::mkostemp(m_temporary.data(), O_CLOEXEC));
    m_made = m_descriptor.IsOpen();
    m_sound = m_made && ::fchmod(m_descriptor.Number(), mode) == 0;
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
