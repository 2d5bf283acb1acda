#include "astro/night_test.h"

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

}  // namespace
}  // namespace rlx
