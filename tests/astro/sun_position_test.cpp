#include "astro/sun_position.h"

#include <libnova/precession.h>
#include <libnova/sidereal_time.h>
#include <libnova/solar.h>

#include <algorithm>
#include <cmath>
#include <cstdio>

#include "astro/angles.h"
#include "astro/night_test.h"

namespace rlx {
namespace {

TEST(SunPosition, JulianDaysOfTheLiterature) {
    const struct {
        int year, month;
        double day, julianDay;
    } rows[] = {
        {1957, 10, 4.81, 2436116.31}, {333, 1, 27.5, 1842713.0},   {2000, 1, 1.5, 2451545.0},
        {1999, 1, 1.0, 2451179.5},    {1988, 6, 19.5, 2447332.0},  {1600, 12, 31.0, 2305812.5},
        {837, 4, 10.3, 2026871.8},    {-1000, 7, 12.5, 1356001.0}, {-4712, 1, 1.5, 0.0},
        {1582, 10, 4.0, 2299159.5},   {1582, 10, 15.0, 2299160.5}, {1582, 10, 14.999, 2299169.499 + 1.0},
        {1582, 11, 1.0, 2299177.5},   {1987, 1, 27.0, 2446822.5},
    };
    for (const auto& row : rows)
        EXPECT_NEAR(JulianDay(row.year, row.month, row.day), row.julianDay, 1e-6) << row.year << ' ' << row.day;
}

TEST(SunPosition, AgreesWithAnEphemeris) {
    double worstPlace = 0.0;
    double worstTime = 0.0;
    int compared = 0;
    for (double julianDay = 2415020.5; julianDay < 2488069.5; julianDay += 97.0) {  // 1900 to 2100
        const double centuries = CenturiesSinceJ2000(julianDay);
        const SunApparentPosition mine = SunApparentPositionAt(centuries);
        ln_equ_posn atJ2000{};
        ln_equ_posn theirs{};
        ln_get_solar_equ_coords(julianDay, &atJ2000);  // referred to the equinox of 2000
        ln_get_equ_prec(&atJ2000, julianDay, &theirs);
        worstPlace = std::max({worstPlace, std::abs(std::remainder(mine.rightAscension - theirs.ra, 360.0)),
                               std::abs(mine.declination * kDegreesPerRadian - theirs.dec)});
        const double sidereal = ln_get_mean_sidereal_time(julianDay) * 15.0;
        worstTime = std::max(worstTime, std::abs(std::remainder(GreenwichSiderealTime(centuries) - sidereal, 360.0)));
        ++compared;
    }
    std::printf("apparent place: worst difference %.5f degrees, sidereal time %.7f degrees, over %d days\n", worstPlace,
                worstTime, compared);
    EXPECT_EQ(compared, 754);
    EXPECT_LT(worstPlace, 0.02);
    EXPECT_LT(worstTime, 0.0005);
}

// The pole itself answers as the row beside it: with pi a hair too large its cosine would turn the answer around.
TEST(NightTest, PoleFollowsItsSeason) {
    for (const double declination : {23.0, -23.0})
        EXPECT_EQ(IsNightAt(0, 180, declination * kRadiansPerDegree, kStandardAltitude, 180, 0, 0, 0.5),
                  declination < 0);
}

}  // namespace
}  // namespace rlx
