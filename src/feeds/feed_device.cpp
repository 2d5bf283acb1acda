#include "feeds/feed_device.h"

#include <cstdint>

#include "base/number.h"
#include "base/text.h"

namespace rlx {

std::u16string DeviceNumber(std::u16string_view owner, const FeedDevice& device) {
    const std::u16string what = std::u16string(owner) + u'\n' + FormatInteger(device.osMajor) + u'.' +
                                FormatInteger(device.osMinor) + u'\n' + device.processor;
    std::uint32_t hash = 0x811C9DC5;  // FNV-1a
    for (const char byte : ToUtf8(what))
        hash = (hash ^ static_cast<unsigned char>(byte)) * 0x01000193U;
    return FormatInteger(hash);
}

}  // namespace rlx
