#pragma once

#include <gtest/gtest.h>

namespace rlx::test {

/// Every part must lie within the area, and none over another.
template <typename Rect, typename Parts>
void ExpectApart(const Rect& area, const Parts& parts) {
    for (auto one = std::begin(parts); one != std::end(parts); ++one) {
        EXPECT_TRUE(area.contains(*one)) << area.width() << "x" << area.height() << ", " << one - std::begin(parts);
        for (auto other = std::begin(parts); other != one; ++other)
            EXPECT_FALSE(one->intersects(*other)) << area.width() << "x" << area.height() << ", parts "
                                                  << one - std::begin(parts) << " and " << other - std::begin(parts);
    }
}

}  // namespace rlx::test
