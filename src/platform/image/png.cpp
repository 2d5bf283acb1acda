#include <png.h>

#include <cstddef>

#include "platform/image/formats.h"
#include "platform/image_codec.h"

namespace rlx {
namespace {

constexpr png_uint_32 kPixelFormat = PNG_FORMAT_BGRA;  // 0xAARRGGBB in memory of little-endian machines

/// Frees what the library holds.
struct Ending {
    png_image& image;
    ~Ending() { png_image_free(&image); }
};

png_image NewImage() {
    png_image image{};
    image.version = PNG_IMAGE_VERSION;
    return image;
}

/// Pixels stand on black: each channel times alpha.
void Flatten(CBitmap& bitmap) {
    const auto channel = [](std::uint32_t pixel, unsigned shift) {
        const std::uint32_t alpha = pixel >> 24U;
        return ((pixel >> shift & 0xFFU) * alpha + 127U) / 255U << shift;
    };
    for (int y = 0; y < bitmap.Height(); ++y) {
        for (std::uint32_t* pixel = bitmap.Row(y); pixel != bitmap.Row(y) + bitmap.Width(); ++pixel) {
            if (*pixel < 0xFF000000U)
                *pixel = 0xFF000000U | channel(*pixel, 16) | channel(*pixel, 8) | channel(*pixel, 0);
        }
    }
}

}  // namespace

// The simplified interface of libpng keeps its long jumps inside and never leaves a caller of its own accord.
std::optional<CBitmap> LoadPng(std::string_view bytes) {
    png_image image = NewImage();
    const Ending ending{image};
    if (png_image_begin_read_from_memory(&image, bytes.data(), bytes.size()) == 0) return std::nullopt;
    if (!IImageCodec::IsSizeAllowed(image.width, image.height)) return std::nullopt;
    image.format = kPixelFormat;
    CBitmap bitmap(static_cast<int>(image.width), static_cast<int>(image.height));
    if (png_image_finish_read(&image, nullptr, bitmap.Row(0), 0, nullptr) == 0) return std::nullopt;
    Flatten(bitmap);
    return bitmap;
}

std::optional<std::string> EncodePng(const CBitmap& bitmap) {
    // The format of the output follows that of the input, which therefore goes in without its alpha.
    std::string packed(static_cast<std::size_t>(bitmap.Width()) * static_cast<std::size_t>(bitmap.Height()) * 3, '\0');
    char* to = packed.data();
    for (int y = 0; y < bitmap.Height(); ++y) {
        for (int x = 0; x < bitmap.Width(); ++x) {
            const std::uint32_t pixel = bitmap.Row(y)[x];
            *to++ = static_cast<char>(pixel >> 16U);
            *to++ = static_cast<char>(pixel >> 8U);
            *to++ = static_cast<char>(pixel);
        }
    }
    png_image image = NewImage();
    const Ending ending{image};
    image.width = static_cast<png_uint_32>(bitmap.Width());
    image.height = static_cast<png_uint_32>(bitmap.Height());
    image.format = PNG_FORMAT_RGB;
    png_alloc_size_t size = PNG_IMAGE_PNG_SIZE_MAX(image);
    std::string file(size, '\0');
    if (png_image_write_to_memory(&image, file.data(), &size, 0, packed.data(), 0, nullptr) == 0) return std::nullopt;
    file.resize(size);
    return file;
}

}  // namespace rlx
