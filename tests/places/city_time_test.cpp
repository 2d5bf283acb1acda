#include "places/city_time.h"

#include <climits>

#include "base/text.h"
#include "places/cities_fixture.h"

namespace rlx {
namespace {

using test::At;

TEST(CityTime, MovesTheDeviceClockToTheCity) {
    const CResources texts;
    const struct {
        const char* name;
        GmtOffset gmt;
        ClockOffset reference;
        const char* now;
        const char* time;
        const char* date;
    } rows[] = {
        {"nothing to move", 0, {0, 0}, "2026-11-22 07:05:09", "07:05:09", "22/11/2026    Sun"},
        {"over midnight with minutes", 545, {0, 0}, "2026-11-22 23:30:42", "05:15:42", "23/11/2026    Mon"},
        {"west, the day before", -3, {0, 0}, "2026-11-22 00:10:00", "21:10:00", "21/11/2026    Sat"},
        {"100 are hours", 100, {0, 0}, "2026-11-22 00:00:00", "76:00:00", "23/11/2026    Mon"},
        {"minutes carry over midnight", 530, {5, 0}, "2026-11-22 23:30:00", "00:00:00", "23/11/2026    Mon"},
        {"minutes borrow over midnight", 0, {0, 30}, "2026-11-22 00:29:59", "23:59:59", "21/11/2026    Sat"},
        {"year end forward", 9, {0, 0}, "2026-12-31 15:00:00", "00:00:00", "01/01/2027    Fri"},
        {"into a leap day", 1, {0, 0}, "2028-02-28 23:00:00", "00:00:00", "29/02/2028    Tue"},
        {"back into a leap day", -1, {0, 0}, "2028-03-01 00:59:00", "23:59:00", "29/02/2028    Tue"},
        {"the sign of a bias of -330", 530, {5, -30}, "2026-11-22 12:00:00", "13:00:00", "22/11/2026    Sun"},
        {"more than a day apart, back", -12, {14, 0}, "2026-11-22 01:00:00", "0-1:00:00", "21/11/2026    Sat"},
        {"the year has four digits", 0, {0, 0}, "0987-01-02 00:00:00", "00:00:00", "02/01/0987    Tue"},
    };
    for (const auto& row : rows) {
        const CityDate date = CityLocalDate(row.gmt, row.reference, At(row.now), true, texts);
        EXPECT_EQ(ToUtf8(CityLocalTime(row.gmt, row.reference, At(row.now))), row.time) << row.name;
        EXPECT_EQ(ToUtf8(date.text), row.date) << row.name;
    }
    const CityDate date = CityLocalDate(545, {0, 0}, At("2026-02-28 23:30:00"), false, texts);
    EXPECT_EQ(date.text, u"01/03 Sun");
    EXPECT_EQ(date.date, (Date{2026, 3, 1}));
}

TEST(CityTime, SplitsTheBiasOfTheDevice) {
    const std::pair<int, ClockOffset> rows[] = {
        {0, {0, 0}},     {-60, {1, 0}},    {300, {-5, 0}},  {-330, {5, -30}},
        {210, {-3, 30}}, {-345, {5, -45}}, {-45, {0, -45}}, {INT_MIN, {35791394, -8}},
    };
    for (const auto& [bias, reference] : rows)
        EXPECT_EQ(ReferenceOfBias(bias), reference) << bias;
}

}  // namespace
}  // namespace rlx
