#include "astro/night_test.h"

#include <cmath>

#include "astro/angles.h"

namespace rlx {
namespace {

constexpr int kHeight = 180;  // one row a degree

// The pole itself answers as the row beside it: with pi a hair too large its cosine would turn the answer around.
TEST(NightTest, PoleFollowsItsSeason) {
    for (const double declination : {23.0, -23.0}) {
        EXPECT_EQ(IsNightAt(0, kHeight, declination * kRadiansPerDegree, kStandardAltitude, 180, 0, 0, 0.5),
                  declination < 0);
    }
}

// The test against the height of the Sun itself, over all rows and hours, with turns that count for nothing.
TEST(NightTest, FollowsTheHeightOfTheSun) {
    int compared = 0;
    for (const double declination : {-23.4, -10.0, -0.5, 0.5, 7.0, 23.4}) {
        for (int row = 1; row < kHeight; ++row) {
            for (int hour = 0; hour < 24; ++hour) {
                const double latitude = (90.0 - row) * kRadiansPerDegree;
                const double angle = (hour * 15.0 - 123.4) * kRadiansPerDegree;
                const double height = std::sin(latitude) * std::sin(declination * kRadiansPerDegree) +
                                      std::cos(latitude) * std::cos(declination * kRadiansPerDegree) * std::cos(angle);
                const double margin = height - std::sin(kStandardAltitude * kRadiansPerDegree);
                if (std::abs(margin) < 1e-6) continue;
                EXPECT_EQ(IsNightAt(row, kHeight, declination * kRadiansPerDegree, kStandardAltitude, 100.0, 450.0,
                                    786.6, hour / 24.0),
                          margin < 0.0)
                    << declination << ' ' << row << ' ' << hour;
                ++compared;
            }
        }
    }
    EXPECT_GT(compared, 25000);
}

}  // namespace
}  // namespace rlx
