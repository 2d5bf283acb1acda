#pragma once

#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

#include "platform/bitmap.h"

namespace rlx {

/// Pictures from and to the bytes of files. No state; any thread.
class IImageCodec {
public:
    static constexpr int kMaxSide = 16384;                   ///< pixels
    static constexpr std::int64_t kMaxPixels = 64LL << 20;   ///< in all
    static constexpr std::size_t kMaxFileSize = 64U << 20U;  ///< give it to `IFileSystem::ReadFile` as the limit

    virtual ~IImageCodec() = default;

    /// A JPEG, PNG or BMP picture, told apart by its first bytes; what is transparent stands on black. Nothing for any
    /// other kind of file, for a broken or cut-off one, and for one beyond the limits above.
    virtual std::optional<CBitmap> Load(std::string_view bytes) const = 0;

    /// The bytes of a PNG file, without alpha. Nothing for an empty bitmap or when there is no memory.
    virtual std::optional<std::string> SavePng(const CBitmap& bitmap) const = 0;

    /// True for a picture with both sides at least 1 and within the limits.
    static constexpr bool IsSizeAllowed(std::int64_t width, std::int64_t height) {
        return width >= 1 && height >= 1 && width <= kMaxSide && height <= kMaxSide && width * height <= kMaxPixels;
    }
};

}  // namespace rlx
