#include "map/solar_instant.h"

#include <cmath>

#include "map/map_picture.h"

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

TEST(MapPicture, PlacesLieWhereTheMapShowsThem) {
    const MapGeometry geometry{368, 180, 4};
    const struct {
        const char* name;
        EarthPoint point;
        MapPixel pixel;
    } rows[] = {
        {"greenwich", {51.5, 0.0}, {184, 38}},
        {"date line from the west", {0.0, -180.0}, {4, 90}},
        {"date line, once round", {0.0, 180.0}, {4, 90}},
        {"north pole", {90.0, 0.0}, {184, 0}},
        {"no such place", {1000.0, -540.5}, {363, 0}},
    };
    for (const auto& row : rows) {
        EXPECT_EQ(PixelOf(row.point, geometry), row.pixel) << row.name;
        EXPECT_EQ(PixelOf(PointOf(row.pixel, geometry), geometry), row.pixel) << row.name;
    }
    EXPECT_EQ(PointOf({0, 0}, geometry).longitude, 176.0);  // on the margin: beyond the date line
}

TEST(MapPicture, MarginsAreNotMap) {
    const CBitmap map(4, 2, 0xFF808080U);
    const CBitmap picture = MapPicture(map, {6, 2, 1}, 0x0000FF);
    const std::uint32_t row[] = {0xFFFF0000U, 0xFF808080U, 0xFF808080U, 0xFF808080U, 0xFF808080U, 0xFFFF0000U};
    for (int x = 0; x < 6; ++x)
        EXPECT_EQ(picture.Row(1)[x], row[x]) << x;
    EXPECT_EQ(MapPicture(map, {8, 4, 0}, 0), CBitmap(8, 4, 0xFF808080U));
    EXPECT_EQ(MapPicture(CBitmap(), {3, 1, 0}, 0xFFFFFF), CBitmap(3, 1, 0xFFFFFFFFU));
    EXPECT_EQ(MapPicture(map, {3, 1, 2}, 0), CBitmap(3, 1, 0xFF000000U));
    EXPECT_TRUE(MapPicture(map, {0, 4, 0}, 0).IsEmpty());
}

}  // namespace
}  // namespace rlx
