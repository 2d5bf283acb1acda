#pragma once

#include "platform/image_codec.h"

namespace rlx {

/// Pictures through libjpeg-turbo and libpng; BMP by a reader of our own.
class CImageCodec : public IImageCodec {
public:
    std::optional<CBitmap> Load(std::string_view bytes) const override;
    std::optional<std::string> SavePng(const CBitmap& bitmap) const override;
};

}  // namespace rlx
