#pragma once

#include <cstddef>
#include <cstdint>
#include <optional>
#include <span>
#include <vector>

namespace rlx {

enum class ResourceType : std::uint32_t { kMenu = 4, kDialog = 5, kString = 6 };

/// The resources of a PE32 or PE32+ library, read as data: nothing of it is ever mapped or run. The bytes may be
/// anything. Every offset is checked against the bytes at hand, a lookup takes a few dozen steps whatever the counts
/// claim, and nothing is allocated for them. Does not own the bytes, which must outlive it.
class CPeImage {
public:
    /// Nothing when the bytes are no library, or one without resources, or when a section that is needed reaches past
    /// the end.
    static std::optional<CPeImage> Open(std::span<const std::byte> file);

    /// The bytes of the resource with that number, in the first language that it has; nothing when there is none.
    std::optional<std::span<const std::byte>> Find(ResourceType type, int id) const;

    /// The numbers of all resources of a type, in the library's order.
    std::vector<int> Ids(ResourceType type) const;

private:
    /// The numbered entries of one directory.
    struct Directory {
        std::size_t first = 0;  // offset of the first numbered entry
        std::size_t count = 0;
    };

    CPeImage(std::span<const std::byte> section, std::uint32_t address) : m_section(section), m_address(address) {}

    std::optional<Directory> DirectoryAt(std::uint32_t offset) const;
    std::optional<std::uint32_t> Entry(const Directory& directory, std::uint32_t id) const;
    std::optional<Directory> Child(const Directory& directory, std::uint32_t id) const;
    std::optional<std::span<const std::byte>> FirstLanguage(std::uint32_t offset) const;

    std::span<const std::byte> m_section;  // from the root directory to the end of its section
    std::uint32_t m_address;               // where the loader would put the first byte of it
};

}  // namespace rlx
