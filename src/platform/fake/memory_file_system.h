#pragma once

#include <map>
#include <set>

#include "platform/fake/failure_plan.h"
#include "platform/file_system.h"

namespace rlx {

/// Files in memory, by plain absolute paths ("/a/b", case-sensitive). A folder exists once it is created or a file is
/// put below it; "/" always does. Writes, copies, moves, removals and new folders are refused as the plan says.
class CMemoryFileSystem : public IFileSystem {
public:
    CMemoryFileSystem() = default;
    explicit CMemoryFileSystem(CFailurePlan& writes) : m_writes(&writes) {}

    std::map<std::filesystem::path, std::string> files;  ///< to be changed whatever the plan says
    std::set<std::filesystem::path> folders{"/"};        ///< those that exist without files
    std::set<std::filesystem::path> readOnly;            ///< folders in which no file can be made, and single files

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

    CFailurePlan* m_writes = nullptr;
};

}  // namespace rlx
