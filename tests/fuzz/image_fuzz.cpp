#include <cstddef>
#include <cstdint>
#include <cstdlib>

#include "platform/image/image_codec.h"

// Any bytes as a picture; what was read must survive being saved.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    using namespace rlx;
    const CImageCodec codec;
    const auto bitmap = codec.Load({reinterpret_cast<const char*>(data), size});
    constexpr int kSmall = 256;
    if (!bitmap || bitmap->Width() > kSmall || bitmap->Height() > kSmall) return 0;
    const auto saved = codec.SavePng(*bitmap);
    if (!saved || codec.Load(*saved) != bitmap) std::abort();
    return 0;
}
