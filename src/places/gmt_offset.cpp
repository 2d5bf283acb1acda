#include "places/gmt_offset.h"

#include <algorithm>
#include <limits>

namespace rlx {

bool IsWholeHours(GmtOffset offset) {
    return offset >= -100 && offset <= 100;
}

ClockOffset SplitGmt(GmtOffset offset) {
    if (IsWholeHours(offset)) return {offset, 0};
    return {offset / 100, offset % 100};
}

GmtOffset AddDaylightHours(GmtOffset offset, int hours) {
    const std::int64_t step = IsWholeHours(offset) ? 1 : 100;
    constexpr std::int64_t kLow = std::numeric_limits<GmtOffset>::min();
    constexpr std::int64_t kHigh = std::numeric_limits<GmtOffset>::max();
    return static_cast<GmtOffset>(std::clamp(offset + hours * step, kLow, kHigh));
}

std::u16string GmtText(std::u16string_view storedOffset) {
    std::u16string text(storedOffset);
    text.insert(text.size() < 3 ? text.size() : text.size() - 2, 1, u'h');
    return text;
}

}  // namespace rlx
