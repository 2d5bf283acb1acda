#include <csetjmp>
#include <cstddef>
#include <cstdio>

#include "platform/image/formats.h"
#include "platform/image_codec.h"

// The library's header takes size_t and FILE from those above.
#include <jpeglib.h>

namespace rlx {
namespace {

// The library reports errors by a long jump. No C++ object with a destructor lives in a function that it can leave: the
// two functions below that call the library hold plain values only.
struct Decoder {
    jpeg_decompress_struct library;
    jpeg_error_mgr errors;
    jpeg_progress_mgr progress;
    std::jmp_buf failed;
};

void Fail(j_common_ptr common) {
    std::longjmp(static_cast<Decoder*>(common->client_data)->failed, 1);
}

// A cut-off or damaged picture is a warning to the library, which would fill the rest with grey.
void FailOnWarning(j_common_ptr common, int level) {
    if (level < 0) Fail(common);
}

void SayNothing(j_common_ptr) {}

// A small file may hold thousands of scans, each of which costs a pass over the whole picture.
void LimitScans(j_common_ptr common) {
    constexpr int kMostScans = 200;
    if (static_cast<Decoder*>(common->client_data)->library.input_scan_number > kMostScans) Fail(common);
}

/// Width and height; false when the header is broken.
bool Begin(Decoder& decoder, const unsigned char* bytes, unsigned long size) {
    decoder.library.err = jpeg_std_error(&decoder.errors);
    decoder.errors.error_exit = Fail;
    decoder.errors.emit_message = FailOnWarning;
    decoder.errors.output_message = SayNothing;
    decoder.library.client_data = &decoder;
    if (setjmp(decoder.failed) != 0) return false;
    jpeg_create_decompress(&decoder.library);
    jpeg_mem_src(&decoder.library, bytes, size);
    decoder.progress.progress_monitor = LimitScans;
    decoder.library.progress = &decoder.progress;
    jpeg_read_header(&decoder.library, TRUE);
    decoder.library.out_color_space = JCS_EXT_BGRX;
    return true;
}

/// Decodes into rows of 32-bit pixels.
bool Decode(Decoder& decoder, CBitmap& bitmap) {
    if (setjmp(decoder.failed) != 0) return false;
    jpeg_start_decompress(&decoder.library);
    while (decoder.library.output_scanline < decoder.library.output_height) {
        JSAMPROW row = reinterpret_cast<JSAMPROW>(bitmap.Row(static_cast<int>(decoder.library.output_scanline)));
        jpeg_read_scanlines(&decoder.library, &row, 1);
    }
    jpeg_finish_decompress(&decoder.library);
    return true;
}

/// Frees what the library holds, also after a failure.
struct Ending {
    Decoder& decoder;
    ~Ending() { jpeg_destroy_decompress(&decoder.library); }
};

void MakeOpaque(CBitmap& bitmap) {
    for (int y = 0; y < bitmap.Height(); ++y) {
        for (std::uint32_t* pixel = bitmap.Row(y); pixel != bitmap.Row(y) + bitmap.Width(); ++pixel)
            *pixel |= 0xFF000000U;
    }
}

}  // namespace

std::optional<CBitmap> LoadJpeg(std::string_view bytes) {
    Decoder decoder{};
    const Ending ending{decoder};
    if (!Begin(decoder, reinterpret_cast<const unsigned char*>(bytes.data()), bytes.size())) return std::nullopt;
    if (!IImageCodec::IsSizeAllowed(decoder.library.image_width, decoder.library.image_height)) return std::nullopt;
    CBitmap bitmap(static_cast<int>(decoder.library.image_width), static_cast<int>(decoder.library.image_height));
    if (!Decode(decoder, bitmap)) return std::nullopt;
    MakeOpaque(bitmap);
    return bitmap;
}

}  // namespace rlx
