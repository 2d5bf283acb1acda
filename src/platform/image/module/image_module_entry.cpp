#include <memory>

#include "platform/image/image_codec.h"

/// What `CImageModule` asks the module for; the caller owns the codec.
extern "C" __attribute__((visibility("default"))) rlx::IImageCodec* RlxMakeImageCodec() {
    return std::make_unique<rlx::CImageCodec>().release();
}
