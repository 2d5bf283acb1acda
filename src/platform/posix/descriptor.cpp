#include "platform/posix/descriptor.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>

namespace rlx {

std::size_t CDescriptor::Read(char* buffer, std::size_t size, bool* failed) {
    ssize_t count = -1;
    do {
        count = ::read(m_number, buffer, size);
    } while (count < 0 && errno == EINTR);
    if (failed != nullptr) *failed = count < 0;
    return count < 0 ? 0 : static_cast<std::size_t>(count);
}

bool CDescriptor::Write(std::string_view bytes) {
    while (!bytes.empty()) {
        const ssize_t count = ::write(m_number, bytes.data(), bytes.size());
        if (count < 0 && errno == EINTR) continue;
        if (count <= 0) return false;
        bytes.remove_prefix(static_cast<std::size_t>(count));
    }
    return true;
}

bool CDescriptor::Sync() {
    return ::fsync(m_number) == 0;
}

bool CDescriptor::Close() {
    if (m_number < 0) return true;
    const int result = ::close(m_number);
    m_number = -1;
    return result == 0;
}

CDescriptor OpenRegularFile(const std::filesystem::path& file) {
    CDescriptor descriptor(::open(file.c_str(), O_RDONLY | O_CLOEXEC | O_NONBLOCK));
    struct stat status {};
    const bool regular = descriptor.IsOpen() && ::fstat(descriptor.Number(), &status) == 0 && S_ISREG(status.st_mode);
    if (!regular) descriptor.Close();
    return descriptor;
}

bool SyncFolder(const std::filesystem::path& folder) {
    CDescriptor descriptor(::open(folder.c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC));
    return descriptor.IsOpen() && descriptor.Sync();
}

}  // namespace rlx
