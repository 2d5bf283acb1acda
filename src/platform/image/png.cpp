#include <png.h>
#include <zlib.h>

#include <csetjmp>
#include <cstddef>
#include <new>
#include <utility>

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

struct Encoder {
    Encoder() = default;
    ~Encoder() { png_destroy_write_struct(&library, &info); }
    Encoder(const Encoder&) = delete;
    Encoder& operator=(const Encoder&) = delete;

    png_structp library = nullptr;
    png_infop info = nullptr;
    std::string file;
    std::jmp_buf failed;
};

void Fail(png_structp library, png_const_charp) {
    std::longjmp(static_cast<Encoder*>(png_get_error_ptr(library))->failed, 1);
}

void SayNothing(png_structp, png_const_charp) {}

void Append(png_structp library, png_bytep bytes, std::size_t size) {
    bool kept = false;
    try {
        static_cast<Encoder*>(png_get_io_ptr(library))->file.append(reinterpret_cast<const char*>(bytes), size);
        kept = true;
    } catch (const std::bad_alloc&) {
        // No exception runs through the library.
    }
    if (!kept) png_error(library, "no memory");
}

void Flush(png_structp) {}

void ChooseForm(png_structp library, png_infop info, const CBitmap& bitmap) {
    constexpr std::size_t kBlock = 65536;
    png_set_filter(library, PNG_FILTER_TYPE_BASE, PNG_FILTER_PAETH);
    png_set_compression_strategy(library, Z_RLE);
    png_set_compression_level(library, Z_BEST_SPEED);
    png_set_compression_buffer_size(library, kBlock);
    png_set_IHDR(library, info, static_cast<png_uint_32>(bitmap.Width()), static_cast<png_uint_32>(bitmap.Height()), 8,
                 PNG_COLOR_TYPE_RGB, PNG_INTERLACE_NONE, PNG_COMPRESSION_TYPE_DEFAULT, PNG_FILTER_TYPE_DEFAULT);
}

/// The library reports errors by a long jump to this function, which therefore holds plain values only.
bool Encode(Encoder& encoder, const CBitmap& bitmap) {
    if (setjmp(encoder.failed) != 0) return false;
    encoder.info = png_create_info_struct(encoder.library);
    if (encoder.info == nullptr) return false;
    png_set_write_fn(encoder.library, &encoder, Append, Flush);
    ChooseForm(encoder.library, encoder.info, bitmap);
    png_write_info(encoder.library, encoder.info);
    // Pixels as they lie in memory of little-endian machines: blue, green, red, alpha, which is left out.
    png_set_bgr(encoder.library);
    png_set_filler(encoder.library, 0, PNG_FILLER_AFTER);
    for (int y = 0; y < bitmap.Height(); ++y)
        png_write_row(encoder.library, reinterpret_cast<png_const_bytep>(bitmap.Row(y)));
    png_write_end(encoder.library, encoder.info);
    return true;
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

// The simplified interface cannot choose how to deflate, and what it chooses takes six times as long for a larger file:
// on maps the Paeth filter leaves runs of equal bytes, which is all that the quickest strategy looks for.
std::optional<std::string> EncodePng(const CBitmap& bitmap) {
    Encoder encoder;
    encoder.library = png_create_write_struct(PNG_LIBPNG_VER_STRING, &encoder, Fail, SayNothing);
    if (encoder.library == nullptr || !Encode(encoder, bitmap)) return std::nullopt;
    return std::move(encoder.file);
}

}  // namespace rlx
