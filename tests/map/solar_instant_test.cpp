#include "map/solar_instant.h"

#include <cmath>

namespace rlx {
namespace {

TEST(SolarInstant, UniversalTimeCarries) {
    const struct {
        const char* name;
        DateTime device;
        int hours, minutes;
        DateTime universal;
    } rows[] = {
        {"kolkata", {{2024, 1, 5}, 3, 10, 0, 0}, 5, 30, {{2024, 1, 4}, 21, 40, 0, 0}},
        {"kolkata by the device's zone", {{2024, 1, 5}, 3, 40, 0, 0}, 5, -30, {{2024, 1, 4}, 23, 10, 0, 0}},
        {"new year in new york", {{2023, 12, 31}, 21, 0, 59, 0}, -5, 0, {{2024, 1, 1}, 2, 0, 59, 0}},
        {"newfoundland", {{2024, 2, 28}, 22, 45, 0, 0}, -3, -30, {{2024, 2, 29}, 2, 15, 0, 0}},
        {"minute on the edge", {{2024, 3, 1}, 0, 0, 0, 0}, 0, 1, {{2024, 2, 29}, 23, 59, 0, 0}},
    };
    for (const auto& row : rows)
        EXPECT_EQ(UniversalTime(row.device, row.hours, row.minutes), row.universal) << row.name;
}

TEST(SolarInstant, JulianDayHoldsTheFraction) {
    const SolarInstant instant = SolarInstantAt({{2000, 1, 1}, 12, 0, 0, 0});
    EXPECT_EQ(instant.dayFraction, 0.5);
    EXPECT_EQ(instant.julianDay, 2451545.0);
    EXPECT_EQ(instant.month, 1);
}

// The subsolar longitude follows from clock and equation of time alone (almanac: +16 min 27 s on 3 November, -14 min
// 14 s on 11 February). The midnight series of the sidereal time, taken at noon, lies up to half a degree off.
TEST(SolarInstant, SubsolarPointFollowsTheEquationOfTime) {
    const struct {
        Date date;
        int hour;
        double minutes, latitude;
    } rows[] = {{{2024, 11, 3}, 12, 16.45, -15.2}, {{2024, 2, 11}, 12, -14.2, -14.2}, {{2024, 6, 13}, 0, 0.0, 23.2}};
    for (const auto& row : rows) {
        const EarthPoint point = SubsolarPoint(SolarInstantAt({row.date, row.hour, 0, 0, 0}));
        const double expected = (12.0 - row.hour) * 15.0 - row.minutes / 4.0;
        EXPECT_NEAR(std::remainder(point.longitude - expected, 360.0), 0.0, 0.6) << row.date.month;
        EXPECT_NEAR(point.latitude, row.latitude, 0.2) << row.date.month;
        EXPECT_LE(std::abs(point.longitude), 180.0);
    }
}

}  // namespace
}  // namespace rlx
