#include "shell/english_image.h"

// Set by resources/english_image.S.
extern "C" {
extern const std::byte rlx_english_image_begin[];
extern const std::byte rlx_english_image_end[];
}

namespace rlx {

std::span<const std::byte> EnglishImage() {
    return {rlx_english_image_begin, rlx_english_image_end};
}

}  // namespace rlx
