#include "shell/string_table.h"

#include "shell/byte_cursor.h"

namespace rlx {

std::u16string FindText(const CPeImage& image, int id) {
    constexpr int kTextsInBlock = 16;
    constexpr int kLastText = 65535;
    if (id < 0 || id > kLastText) return {};
    // Block 1 holds the texts 0 to 15.
    const auto block = image.Find(ResourceType::kString, id / kTextsInBlock + 1);
    if (!block) return {};
    CByteCursor cursor(*block);
    for (int skipped = 0; skipped < id % kTextsInBlock; ++skipped) {
        const std::size_t units = cursor.U16();
        cursor.Skip(units * 2);
    }
    const std::size_t units = cursor.U16();
    return cursor.Units(units);
}

}  // namespace rlx
