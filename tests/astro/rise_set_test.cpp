#include "astro/rise_set.h"

#include <cmath>
#include <limits>

#include "astro/angles.h"

namespace rlx {
namespace {

TEST(RiseSet, DayNumbersCountFromTheLastDayOf1999) {
    const struct {
        int year, month, day;
        float hour;
        double number;
    } rows[] = {
        {1999, 12, 31, 0.0F, 0.0},     {1990, 4, 19, 0.0F, -3543.0}, {2000, 2, 29, 12.0F, 60.5},
        {2024, 12, 31, 12.0F, 9132.5}, {2100, 2, 28, 0.0F, 36584.0}, {2100, 3, 1, 0.0F, 36585.0 + 1.0},
    };
    for (const auto& row : rows)
        EXPECT_EQ(RiseSetDayNumber(row.year, row.month, row.day, row.hour), row.number) << row.year << '-' << row.month;
}

// A worked example found in the literature: 19 April 1990, 0h UT, declination +11.0084 degrees, mean longitude 26.8388.
TEST(RiseSet, SunOfAWorkedExample) {
    const SunLongitude sun = SunEclipticLongitude(-3543.0);
    EXPECT_NEAR(sun.meanLongitude * kDegreesPerRadian, 26.8388, 0.0001);
    EXPECT_NEAR(sun.meanAnomaly * kDegreesPerRadian, 104.0653, 0.0001);
    EXPECT_NEAR(sun.declination * kDegreesPerRadian, 11.0084, 0.0001);
    EXPECT_NEAR(sun.ecliptic * kDegreesPerRadian, 28.6869, 0.003);
}

TEST(RiseSet, PolarSeasonsAreNamed) {
    const struct {
        const char* name;
        Date date;
        int latitude;
        DayKind kind;
    } rows[] = {
        {"north cape in june", {2024, 6, 21}, 71, DayKind::kPolarDay},
        {"north cape in december", {2024, 12, 21}, 71, DayKind::kPolarNight},
        {"south pole in june", {2024, 6, 21}, -90, DayKind::kPolarNight},
        {"equator", {2024, 6, 21}, 0, DayKind::kNormal},
    };
    for (const auto& row : rows) {
        const RiseSet sun = SunRiseAndSet(row.date, {row.latitude, 0, 0.0});
        EXPECT_EQ(sun.kind, row.kind) << row.name;
        if (std::abs(row.latitude) == 90) continue;
        EXPECT_EQ(std::isfinite(sun.sunriseHours), row.kind != DayKind::kPolarNight) << row.name;
        const std::u16string length = FormatHours(sun.dayLengthHours);
        EXPECT_EQ(length == u"23:59", row.kind == DayKind::kPolarDay) << row.name;
        EXPECT_EQ(length.empty(), row.kind == DayKind::kPolarNight) << row.name;
    }
}

// The tangent of latitude 0 takes refraction out of the model: the equator's day is half a day.
TEST(RiseSet, EquatorAndZones) {
    for (int day = 0; day < 365; day += 7) {
        const RiseSet sun = SunRiseAndSet(AddDays({2023, 1, 1}, day), {0, 0, 0.0});
        EXPECT_NEAR(sun.dayLengthHours, 12.0, 1e-9) << day;
    }
    EXPECT_EQ(ZoneHours(100), 100.0);
    EXPECT_EQ(ZoneHours(101), 101 * 0.01);
    EXPECT_EQ(ZoneHours(-350), -3.5);
    EXPECT_EQ(RiseSetPlaceOf(u"48.85", u"-0.5", 1), (RiseSetPlace{48, 0, 1.0}));
    EXPECT_EQ(RiseSetPlaceOf(u"-33.9 S", u"", 1030), (RiseSetPlace{-33, 0, 1030 * 0.01}));
}

TEST(RiseSet, HoursAreCutNotRounded) {
    constexpr double kInfinity = std::numeric_limits<double>::infinity();
    const struct {
        double hours;
        const char16_t* text;
    } rows[] = {
        {6.999, u"06:59"},     {0.0, u"00:00"},   {-1.5, u"0-1:0-30"},    {-0.5, u"00:0-30"},
        {12.999999, u"12:59"}, {24.0, u"24:00"},  {-12.25, u"0-12:0-15"}, {9.1, u"09:05"},
        {kInfinity, u""},      {-kInfinity, u""}, {std::nan(""), u""},    {1e300, u""},
    };
    for (const auto& row : rows)
        EXPECT_EQ(FormatHours(row.hours), row.text) << row.hours;
}

}  // namespace
}  // namespace rlx
