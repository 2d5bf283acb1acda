#pragma once

#include <cstddef>
#include <filesystem>
#include <string_view>
#include <utility>

namespace rlx {

/// An open file of the host; closed when this goes out of scope.
class CDescriptor {
public:
    explicit CDescriptor(int number) : m_number(number) {}
    ~CDescriptor() { Close(); }
    CDescriptor(CDescriptor&& other) noexcept : m_number(std::exchange(other.m_number, -1)) {}
    CDescriptor(const CDescriptor&) = delete;
    CDescriptor& operator=(const CDescriptor&) = delete;
    CDescriptor& operator=(CDescriptor&& other) noexcept {
        if (this != &other) {
            Close();
            m_number = std::exchange(other.m_number, -1);
        }
        return *this;
    }

    bool IsOpen() const { return m_number >= 0; }
    int Number() const { return m_number; }

    /// Up to `size` bytes; 0 at the end and on an error, which `failed` tells apart when given.
    std::size_t Read(char* buffer, std::size_t size, bool* failed = nullptr);

    bool Write(std::string_view bytes);

    /// Brings the bytes (of a folder: its names) to the disk.
    bool Sync();

    /// False when the system reports a late failure.
    bool Close();

private:
    int m_number;
};

/// Open for reading; not open when it is not a regular file. Never waits for a pipe's other end.
CDescriptor OpenRegularFile(const std::filesystem::path& file);

/// Flushes the names of a folder to the disk.
bool SyncFolder(const std::filesystem::path& folder);

}  // namespace rlx
