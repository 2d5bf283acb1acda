#pragma once

#include <cstddef>
#include <cstdint>
#include <vector>

namespace rlx {

/// A picture in memory: 32-bit pixels 0xAARRGGBB in rows from the top, without gaps between rows. Alpha is 255
/// throughout. One thread at a time; copies copy the pixels.
class CBitmap {
public:
    CBitmap() = default;

    /// Both sides at least 0; all pixels `pixel`.
    CBitmap(int width, int height, std::uint32_t pixel = 0xFF000000U)
        : m_width(width),
          m_height(height),
          m_pixels(static_cast<std::size_t>(width) * static_cast<std::size_t>(height), pixel) {}

    int Width() const { return m_width; }
    int Height() const { return m_height; }
    bool IsEmpty() const { return m_pixels.empty(); }

    /// The first pixel of a row; `y` from 0 to `Height()` - 1. Valid until the bitmap is assigned to or gone.
    std::uint32_t* Row(int y) {
        return m_pixels.data() + static_cast<std::size_t>(y) * static_cast<std::size_t>(m_width);
    }
    const std::uint32_t* Row(int y) const {
        return m_pixels.data() + static_cast<std::size_t>(y) * static_cast<std::size_t>(m_width);
    }

    friend bool operator==(const CBitmap&, const CBitmap&) = default;

private:
    int m_width = 0;
    int m_height = 0;
    std::vector<std::uint32_t> m_pixels;
};

/// A pixel of a colour 0xBBGGRR, the form of skin files.
constexpr std::uint32_t PixelOfColour(std::uint32_t colour) {
    return 0xFF000000U | (colour & 0xFFU) << 16U | (colour & 0xFF00U) | (colour >> 16U & 0xFFU);
}

}  // namespace rlx
