#pragma once

#include <map>
#include <set>

#include "platform/fake/failure_plan.h"
#include "platform/file_system.h"

namespace rlx {

/// Files in memory, below absolute paths. Folders exist once they are created or a file is put below them; "/" always
/// does. Writes, copies, moves, removals and new folders are refused as the plan says.
class CMemoryFileSystem : public IFileSystem {
public:
    CMemoryFileSystem() = default;
    explicit CMemoryFileSystem(CFailurePlan& writes) : m_writes(&writes) {}

    /// Puts a file there, folders included, whatever the plan says.
    void Put(const std::filesystem::path& file, std::string bytes);

    /// From now on no file can be made in this folder.
    void MakeReadOnly(const std::filesystem::path& folder);

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

private:
    bool Allows() { return m_writes == nullptr || m_writes->Allows(); }
    bool CanHold(const std::filesystem::path& file);
    void AddFolders(std::filesystem::path folder);

    CFailurePlan* m_writes = nullptr;
    std::map<std::filesystem::path, std::string> m_files;
    std::set<std::filesystem::path> m_folders{"/"};
    std::set<std::filesystem::path> m_readOnly;
};

}  // namespace rlx
