#include <array>
#include <cstdint>

#include "platform/image/formats.h"
#include "platform/image_codec.h"

namespace rlx {
namespace {

constexpr std::size_t kFileHeader = 14;
constexpr std::size_t kInfoHeader = 40;
constexpr std::uint32_t kUncompressed = 0;
constexpr std::uint32_t kBitFields = 3;  // 32 bits with masks, which may be the usual ones

/// Little-endian numbers of a file; anything beyond its end is 0, which no sound header holds where it matters.
class CFields {
public:
    explicit CFields(std::string_view bytes) : m_bytes(bytes) {}

    std::uint32_t Byte(std::size_t at) const {
        return at < m_bytes.size() ? static_cast<unsigned char>(m_bytes[at]) : 0;
    }
    std::uint32_t Word(std::size_t at) const { return Byte(at) | Byte(at + 1) << 8U; }
    std::uint32_t Dword(std::size_t at) const { return Word(at) | Word(at + 2) << 16U; }
    std::size_t Size() const { return m_bytes.size(); }

private:
    std::string_view m_bytes;
};

struct BmpHeader {
    std::size_t pixels = 0;   // offset in the file
    std::size_t palette = 0;  // offset in the file
    std::size_t colours = 0;  // in the palette
    std::int64_t width = 0;
    std::int64_t height = 0;  // always positive
    bool fromTop = false;
    std::uint32_t bits = 0;
    std::size_t rowSize = 0;  // bytes, a multiple of four
};

bool HasUsualMasks(const CFields& file) {
    return file.Dword(54) == 0xFF0000 && file.Dword(58) == 0xFF00 && file.Dword(62) == 0xFF;
}

bool IsLayoutKnown(const CFields& file, std::uint32_t bits) {
    const std::uint32_t compression = file.Dword(30);
    if (bits == 8 || bits == 24) return compression == kUncompressed;
    return bits == 32 && (compression == kUncompressed || (compression == kBitFields && HasUsualMasks(file)));
}

std::optional<BmpHeader> ReadHeader(const CFields& file) {
    const std::size_t headerSize = file.Dword(14);
    if (file.Size() < kFileHeader + kInfoHeader || headerSize < kInfoHeader || headerSize > 4096) return std::nullopt;
    BmpHeader header;
    const auto height = static_cast<std::int32_t>(file.Dword(22));
    header.width = static_cast<std::int32_t>(file.Dword(18));
    header.fromTop = height < 0;
    header.height = header.fromTop ? -static_cast<std::int64_t>(height) : height;
    header.bits = file.Word(28);
    if (!IsLayoutKnown(file, header.bits) || !IImageCodec::IsSizeAllowed(header.width, header.height))
        return std::nullopt;
    header.palette = kFileHeader + headerSize;
    header.colours = file.Dword(46) == 0 ? 256 : file.Dword(46);
    if (header.colours > 256) return std::nullopt;
    header.pixels = file.Dword(10);
    header.rowSize = (static_cast<std::size_t>(header.width) * header.bits / 8 + 3) / 4 * 4;
    const bool fits = header.pixels >= kFileHeader + headerSize && header.pixels <= file.Size() &&
                      header.rowSize * static_cast<std::size_t>(header.height) <= file.Size() - header.pixels;
    return fits ? std::optional(header) : std::nullopt;
}

std::array<std::uint32_t, 256> ReadPalette(const CFields& file, const BmpHeader& header) {
    std::array<std::uint32_t, 256> palette{};
    palette.fill(0xFF000000U);
    if (header.bits != 8) return palette;
    for (std::size_t i = 0; i < header.colours; ++i)
        palette[i] = 0xFF000000U | (file.Dword(header.palette + i * 4) & 0xFFFFFFU);
    return palette;
}

}  // namespace

std::optional<CBitmap> LoadBmp(std::string_view bytes) {
    const CFields file(bytes);
    const auto header = ReadHeader(file);
    if (!header) return std::nullopt;
    const auto palette = ReadPalette(file, *header);
    const int width = static_cast<int>(header->width);
    const int height = static_cast<int>(header->height);
    const std::size_t pixelSize = header->bits / 8;
    CBitmap bitmap(width, height);
    for (int y = 0; y < height; ++y) {
        std::uint32_t* row = bitmap.Row(header->fromTop ? y : height - 1 - y);
        std::size_t at = header->pixels + static_cast<std::size_t>(y) * header->rowSize;
        for (int x = 0; x < width; ++x, at += pixelSize) {
            row[x] = pixelSize == 1 ? palette[file.Byte(at)]
                                    : 0xFF000000U | file.Byte(at) | file.Byte(at + 1) << 8U | file.Byte(at + 2) << 16U;
        }
    }
    return bitmap;
}

}  // namespace rlx
