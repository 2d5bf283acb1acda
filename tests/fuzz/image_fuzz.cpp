#include "fuzz/target.h"
#include "platform/image/image_codec.h"

// Any bytes as a picture; what was read must survive being saved.
void Try(std::string_view bytes) {
    using namespace rlx;
    const CImageCodec codec;
    const auto bitmap = codec.Load(bytes);
    constexpr int kSmall = 256;
    if (!bitmap || bitmap->Width() > kSmall || bitmap->Height() > kSmall) return;
    const auto saved = codec.SavePng(*bitmap);
    FailIf(!saved || codec.Load(*saved) != bitmap);
}
