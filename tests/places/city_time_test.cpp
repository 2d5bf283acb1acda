#include "places/city_time.h"

#include <climits>

#include "base/text.h"
#include "places/cities_fixture.h"
#include "places/dst_rule.h"

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

using test::At;

TEST(DstRule, ReadsAnyText) {
    const struct {
        const char16_t* text;
        DstRule rule;
    } rows[] = {
        {u"1:88:2:298:3", {true, 1, 88, 2, 298, 3}},
        {u"0:88:2:298:3", {false, 0, 88, 2, 298, 3}},
        {u"", {true, 0, 0, 0, 0, 0}},
        {u" 0:1:2:3:4", {true, 0, 1, 2, 3, 4}},
        {u"1:x:2h:-3", {true, 1, 0, 2, -3, 0}},
        {u"1:9999999999:0:-9999999999:0\r", {true, 1, 2147483647, 0, -2147483647 - 1, 0}},
    };
    for (const auto& row : rows)
        EXPECT_EQ(ParseDstRule(row.text), row.rule) << ToUtf8(row.text);
}

TEST(DstRule, LaysThePeriodIntoTheYear) {
    const struct {
        const char* name;
        const char16_t* rule;
        int year;
        const char* start;
        const char* end;
    } rows[] = {
        {"northern summer", u"1:88:2:298:3", 2026, "2026-03-29 02:00:00", "2026-10-25 03:00:00"},
        {"day 365 of a leap year", u"1:1:0:365:23", 2028, "2028-01-01 00:00:00", "2028-12-30 23:00:00"},
        {"end on 29 February", u"1:277:2:60:3", 2028, "2028-10-03 02:00:00", "2029-03-01 03:00:00"},
        {"end on day 1", u"1:67:2:1:0", 2026, "2026-03-08 02:00:00", "2027-01-01 00:00:00"},
    };
    for (const auto& row : rows) {
        const DstPeriod period = PeriodOfYear(ParseDstRule(row.rule), row.year, DstPrecision::kHour);
        EXPECT_EQ(period.start, At(row.start)) << row.name;
        EXPECT_EQ(period.end, At(row.end)) << row.name;
    }
    const DstPeriod days = PeriodOfYear(ParseDstRule(u"1:277:2:95:3"), 2026, DstPrecision::kDay);
    EXPECT_EQ(days.start, At("2026-10-04 00:00:00"));
    EXPECT_EQ(days.end, At("2027-04-05 00:00:00"));
}

TEST(GmtOffset, SplitsAndAdds) {
    const struct {
        GmtOffset offset;
        ClockOffset split;
        int hours;
        GmtOffset sum;
    } rows[] = {
        {100, {100, 0}, 1, 101},
        {101, {1, 1}, 1, 201},
        {-101, {-1, -1}, 1, -1},
        {530, {5, 30}, 0, 530},
        {-330, {-3, -30}, 1, -230},
        {2147483647, {21474836, 47}, 2147483647, 2147483647},
        {-2147483647 - 1, {-21474836, -48}, -2147483647 - 1, -2147483647 - 1},
    };
    for (const auto& row : rows) {
        EXPECT_EQ(SplitGmt(row.offset), row.split) << row.offset;
        EXPECT_EQ(AddDaylightHours(row.offset, row.hours), row.sum) << row.offset;
    }
}

TEST(GmtOffset, IsShownByItsCharacters) {
    const std::pair<const char16_t*, const char16_t*> rows[] = {
        {u"5", u"5h"},       {u"-5", u"-5h"}, {u"10", u"10h"},   {u"-10", u"-h10"},   {u"530", u"5h30"},
        {u"-330", u"-3h30"}, {u"", u"h"},     {u"100", u"1h00"}, {u"1030", u"10h30"}, {u"+10", u"+h10"},
    };
    for (const auto& [stored, shown] : rows)
        EXPECT_EQ(GmtText(stored), shown);
}

}  // namespace
}  // namespace rlx
