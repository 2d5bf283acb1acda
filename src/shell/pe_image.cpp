#include "shell/pe_image.h"

#include <algorithm>

#include "shell/byte_cursor.h"

namespace rlx {
namespace {

constexpr std::uint16_t kDosMagic = 0x5A4D;
constexpr std::size_t kPeOffsetAt = 0x3C;
constexpr std::uint32_t kPeMagic = 0x00004550;
constexpr std::size_t kCoffSize = 24;  // with the magic
constexpr std::uint16_t kPe32 = 0x10B;
constexpr std::uint16_t kPe32Plus = 0x20B;
constexpr std::uint32_t kResourceDirectory = 2;  // its place in the table of data directories
constexpr std::size_t kMaxSections = 96;         // as the platform's own loader has it
constexpr std::uint32_t kHighBit = 0x80000000;   // a text instead of a number; a directory instead of data
constexpr std::size_t kEntrySize = 8;

using Bytes = std::span<const std::byte>;

struct Layout {
    std::uint32_t resources = 0;  // address of the root directory
    std::size_t sections = 0;     // offset of the section table
    std::size_t sectionCount = 0;
};

std::optional<std::uint32_t> ResourceAddress(Bytes file, std::size_t optionalHeader, std::size_t size) {
    if (optionalHeader > file.size() || file.size() - optionalHeader < size) return std::nullopt;
    const Bytes header = file.subspan(optionalHeader, size);
    CByteCursor cursor(header);
    const auto magic = cursor.U16();
    if (magic != kPe32 && magic != kPe32Plus) return std::nullopt;
    cursor.Skip((magic == kPe32 ? 92U : 108U) - 2U);
    if (cursor.U32() <= kResourceDirectory) return std::nullopt;
    cursor.Skip(std::size_t{kResourceDirectory} * 8);
    const auto address = cursor.U32();
    const auto length = cursor.U32();
    if (!cursor.Ok() || address == 0 || length == 0) return std::nullopt;
    return address;
}

std::optional<Layout> ReadLayout(Bytes file) {
    CByteCursor dos(file);
    if (dos.U16() != kDosMagic) return std::nullopt;
    dos.Skip(kPeOffsetAt - 2);
    const std::size_t pe = dos.U32();
    if (!dos.Ok()) return std::nullopt;

    CByteCursor coff(file, pe);
    if (coff.U32() != kPeMagic) return std::nullopt;
    coff.Skip(2);
    Layout layout;
    layout.sectionCount = coff.U16();
    coff.Skip(12);
    const std::size_t optionalSize = coff.U16();
    if (!coff.Ok() || layout.sectionCount > kMaxSections) return std::nullopt;

    const auto address = ResourceAddress(file, pe + kCoffSize, optionalSize);
    if (!address) return std::nullopt;
    layout.resources = *address;
    layout.sections = pe + kCoffSize + optionalSize;
    return layout;
}

/// The bytes from `layout.resources` to the end of the section that holds it.
std::optional<Bytes> ResourceBytes(Bytes file, const Layout& layout) {
    CByteCursor cursor(file, layout.sections);
    for (std::size_t i = 0; i < layout.sectionCount; ++i) {
        cursor.Skip(12);
        const auto address = cursor.U32();
        const auto size = cursor.U32();
        const auto offset = cursor.U32();
        cursor.Skip(16);
        if (!cursor.Ok()) return std::nullopt;
        if (layout.resources < address || layout.resources - address >= size) continue;
        if (offset > file.size() || file.size() - offset < size) return std::nullopt;
        return file.subspan(offset, size).subspan(layout.resources - address);
    }
    return std::nullopt;
}

}  // namespace

std::optional<CPeImage> CPeImage::Open(std::span<const std::byte> file) {
    const auto layout = ReadLayout(file);
    if (!layout) return std::nullopt;
    const auto bytes = ResourceBytes(file, *layout);
    if (!bytes) return std::nullopt;
    CPeImage image(*bytes, layout->resources);
    if (!image.DirectoryAt(0)) return std::nullopt;
    return image;
}

std::optional<CPeImage::Directory> CPeImage::DirectoryAt(std::uint32_t offset) const {
    CByteCursor cursor(m_section, offset);
    cursor.Skip(12);
    const std::size_t named = cursor.U16();
    const std::size_t numbered = cursor.U16();
    cursor.Skip(named * kEntrySize);
    const std::size_t first = cursor.At();
    if (!cursor.Skip(numbered * kEntrySize)) return std::nullopt;
    return Directory{first, numbered};
}

/// The offset word of the entry with that number. Entries are sorted by number; in a library where they are not, some
/// are just not found.
std::optional<std::uint32_t> CPeImage::Entry(const Directory& directory, std::uint32_t id) const {
    std::size_t low = 0;
    std::size_t high = directory.count;
    while (low < high) {
        const std::size_t middle = low + (high - low) / 2;
        CByteCursor cursor(m_section, directory.first + middle * kEntrySize);
        const auto found = cursor.U32();
        if (found == id) return cursor.U32();
        if (found < id) low = middle + 1;
        if (found > id) high = middle;
    }
    return std::nullopt;
}

std::optional<CPeImage::Directory> CPeImage::Child(const Directory& directory, std::uint32_t id) const {
    const auto offset = Entry(directory, id);
    if (!offset || (*offset & kHighBit) == 0) return std::nullopt;
    return DirectoryAt(*offset & ~kHighBit);
}

std::optional<std::span<const std::byte>> CPeImage::FirstLanguage(std::uint32_t offset) const {
    if (offset & kHighBit) return std::nullopt;
    CByteCursor cursor(m_section, offset);
    const auto address = cursor.U32();
    const auto size = cursor.U32();
    if (!cursor.Ok() || address < m_address) return std::nullopt;
    const std::size_t at = address - m_address;
    if (at > m_section.size() || m_section.size() - at < size) return std::nullopt;
    return m_section.subspan(at, size);
}

std::optional<std::span<const std::byte>> CPeImage::Find(ResourceType type, int id) const {
    if (id < 0) return std::nullopt;
    const auto root = DirectoryAt(0);
    const auto names = root ? Child(*root, static_cast<std::uint32_t>(type)) : std::nullopt;
    const auto languages = names ? Child(*names, static_cast<std::uint32_t>(id)) : std::nullopt;
    if (!languages || languages->count == 0) return std::nullopt;
    CByteCursor cursor(m_section, languages->first + 4);
    return FirstLanguage(cursor.U32());
}

std::vector<int> CPeImage::Ids(ResourceType type) const {
    std::vector<int> ids;
    const auto root = DirectoryAt(0);
    const auto names = root ? Child(*root, static_cast<std::uint32_t>(type)) : std::nullopt;
    if (!names) return ids;
    CByteCursor cursor(m_section, names->first);
    for (std::size_t i = 0; i < names->count; ++i) {
        const auto id = cursor.U32();
        cursor.Skip(4);
        if ((id & kHighBit) == 0) ids.push_back(static_cast<int>(id));
    }
    return ids;
}

}  // namespace rlx
