#include "news/news_zoom.h"

#include <algorithm>
#include <cstdint>

namespace rlx {

namespace {

bool IsBetween(std::int64_t low, std::int64_t value, std::int64_t high) {
    return low < value && value < high;
}

}  // namespace

CNewsZoom::CNewsZoom(int level) : m_level(std::clamp(level, kLeast, kMost)) {}

int CNewsZoom::Tap(int x, int y, int right, int bottom) {
    const std::int64_t r = right;
    const std::int64_t b = bottom;
    const bool inRow = IsBetween(b - 23, y, b - 3);
    if (m_level < kMost && inRow && IsBetween(r - 23, x, r - 3)) {
        ++m_level;
    } else if (m_level > kLeast && inRow && IsBetween(r - 46, x, r - 26)) {
        --m_level;
    }
    return m_level;
}

}  // namespace rlx
