#pragma once

#include <filesystem>
#include <optional>
#include <string>

#include "platform/file_system.h"
#include "tools/packing/packing_lists.h"

namespace rlx {

enum class PackingSave {
    kSaved,
    kSavedBesideOther,  ///< someone else had written the file meanwhile; that version is kept as ".bak"
    kFailed,            ///< the file is as it was
};

/// "pack.dat" in the application folder. Does not own the file system; one thread.
class CPackingStore {
public:
    CPackingStore(IFileSystem& files, const std::filesystem::path& folder);

    /// Makes an empty file where there is none. One that cannot be read, or is malformed, counts as absent.
    CPackingLists Load();

    /// Replaces the file in one step. What would be lost by it (a malformed file, a version that this program has not
    /// read) is kept beside as "pack.dat.bak" first; where that is not possible nothing is written.
    PackingSave Save(const CPackingLists& lists);

private:
    IFileSystem& m_files;
    std::filesystem::path m_file;
    std::filesystem::path m_backup;
    std::optional<std::string> m_known;  ///< the bytes last read or written; nothing when they could not be read
    bool m_lossy = false;
};

}  // namespace rlx
