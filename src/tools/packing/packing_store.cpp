#include "tools/packing/packing_store.h"

#include <utility>

#include "tools/packing/packing_file.h"

namespace rlx {

namespace {

constexpr std::size_t kMaxFileSize = 4U << 20U;  // bytes

}  // namespace

CPackingStore::CPackingStore(IFileSystem& files, const std::filesystem::path& folder)
    : m_files(files), m_file(folder / "pack.dat"), m_backup(folder / "pack.dat.bak") {}

CPackingLists CPackingStore::Load() {
    m_known = std::string();
    m_lossy = false;
    if (!m_files.IsFile(m_file)) {
        // The organizer works without the file too, so a folder that cannot be written is no reason to stop.
        m_files.WriteFile(m_file, {});
        return {};
    }
    m_known = m_files.ReadFile(m_file, kMaxFileSize);
    if (!m_known) return {};
    PackingFile file = ReadPackingFile(*m_known);
    m_lossy = file.lossy;
    return std::move(file.lists);
}

PackingSave CPackingStore::Save(const CPackingLists& lists) {
    const bool exists = m_files.IsFile(m_file);
    const std::optional<std::string> current = exists ? m_files.ReadFile(m_file, kMaxFileSize) : std::string();
    const bool isOther = m_known.has_value() && current != m_known;
    std::string bytes = WritePackingFile(lists);
    const bool losesNothing = current && (current->empty() || current == bytes || (!m_lossy && !isOther));
    if (!losesNothing && !m_files.CopyFile(m_file, m_backup)) return PackingSave::kFailed;
    if (!m_files.WriteFile(m_file, bytes)) return PackingSave::kFailed;
    m_known = std::move(bytes);
    m_lossy = false;
    return !losesNothing && isOther ? PackingSave::kSavedBesideOther : PackingSave::kSaved;
}

}  // namespace rlx
