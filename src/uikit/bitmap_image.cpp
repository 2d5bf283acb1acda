#include "uikit/bitmap_image.h"

#include <memory>

namespace rlx {

namespace {

constexpr qsizetype kBytesPerPixel = 4;

const uchar* BytesOf(const CBitmap& bitmap) {
    return reinterpret_cast<const uchar*>(bitmap.Row(0));
}

}  // namespace

QImage ViewOf(const CBitmap& bitmap) {
    if (bitmap.IsEmpty()) return {};
    return {BytesOf(bitmap), bitmap.Width(), bitmap.Height(), bitmap.Width() * kBytesPerPixel, QImage::Format_RGB32};
}

QImage ImageOf(CBitmap bitmap) {
    if (bitmap.IsEmpty()) return {};
    auto kept = std::make_unique<CBitmap>(std::move(bitmap));
    const uchar* bytes = BytesOf(*kept);
    const int width = kept->Width();
    const int height = kept->Height();
    const auto release = [](void* owned) { delete static_cast<CBitmap*>(owned); };
    return {bytes, width, height, width * kBytesPerPixel, QImage::Format_RGB32, release, kept.release()};
}

}  // namespace rlx
