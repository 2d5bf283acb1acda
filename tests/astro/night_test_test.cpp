#include "astro/night_test.h"

#include <cmath>

#include "astro/angles.h"

namespace rlx {
namespace {

constexpr int kHeight = 180;  // one row a degree

TEST(NightTest, PointsOfOneInstant) {
    const struct {
        const char* name;
        int row;
        double declination;  // degrees
        double transit;      // degrees, of the point's meridian
        double dayFraction;
        bool night;
    } rows[] = {
        {"noon at the equator", 90, 0, 180, 0.5, false},
        {"midnight at the equator", 90, 0, 180, 0.0, true},
        {"just after sunset", 90, 0, 180, 0.7524, true},
        {"just before sunset", 90, 0, 180, 0.7522, false},
        {"sunset past the end of the day", 90, 0, 330, 0.20, true},
        {"noon just before the end of the day", 90, 0, 330, 0.99, false},
        {"northern polar day", 10, 23, 180, 0.0, false},
        {"northern polar night", 10, -23, 180, 0.5, true},
        {"southern polar night", 170, 23, 180, 0.5, true},
        {"southern polar day", 170, -23, 180, 0.0, false},
        {"the pole itself in its summer", 0, 23, 180, 0.0, false},
        {"the pole itself in its winter", 0, -23, 180, 0.5, true},
    };
    for (const auto& row : rows) {
        EXPECT_EQ(IsNightAt(row.row, kHeight, row.declination * kRadiansPerDegree, kStandardAltitude, row.transit, 0, 0,
                            row.dayFraction),
                  row.night)
            << row.name;
        EXPECT_EQ(IsNightAt(row.row, kHeight, row.declination * kRadiansPerDegree, kStandardAltitude, row.transit, 400,
                            760, row.dayFraction),
                  row.night)
            << row.name << ", with turns added";
    }
}

// The test against the height of the Sun itself, over all rows and hours.
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
                EXPECT_EQ(IsNightAt(row, kHeight, declination * kRadiansPerDegree, kStandardAltitude, 100.0, 50.0, 26.6,
                                    hour / 24.0),
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
