#pragma once

#include <filesystem>
#include <string>
#include <string_view>

#include "platform/posix/descriptor.h"

namespace rlx {

/// New content for a file, gathered beside it and put in its place in one step. Without `Commit` nothing changes.
/// A process that is killed may leave the half of a file; the next that writes to the folder a minute later removes it.
class CAtomicFile {
public:
    /// `file` may be a link: what it leads to is replaced.
    explicit CAtomicFile(const std::filesystem::path& file);
    ~CAtomicFile();
    CAtomicFile(const CAtomicFile&) = delete;
    CAtomicFile& operator=(const CAtomicFile&) = delete;

    /// Once false, `Commit` fails as well.
    bool Write(std::string_view bytes);

    /// Flushes to the disk and renames. False leaves the old file as it was.
    bool Commit();

private:
    std::filesystem::path m_target;
    std::string m_temporary;
    CDescriptor m_descriptor;
    bool m_made = false;
    bool m_sound = false;
    bool m_renamed = false;
};

}  // namespace rlx
