#include "platform/image/image_codec.h"

#include <new>

#include "platform/image/formats.h"

namespace rlx {

std::optional<CBitmap> CImageCodec::Load(std::string_view bytes) const {
    if (bytes.size() > kMaxFileSize) return std::nullopt;
    try {
        if (bytes.starts_with("\xFF\xD8\xFF")) return LoadJpeg(bytes);
        if (bytes.starts_with("\x89PNG\r\n\x1A\n")) return LoadPng(bytes);
        if (bytes.starts_with("BM")) return LoadBmp(bytes);
    } catch (const std::bad_alloc&) {
        // A picture that does not fit into memory is one that cannot be shown.
    }
    return std::nullopt;
}

std::optional<std::string> CImageCodec::SavePng(const CBitmap& bitmap) const {
    if (bitmap.IsEmpty()) return std::nullopt;
    try {
        return EncodePng(bitmap);
    } catch (const std::bad_alloc&) {
        return std::nullopt;
    }
}

}  // namespace rlx
