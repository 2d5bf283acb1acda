#include "weather/freshness.h"

namespace rlx {
namespace {

Forecast FiveDays(const Date& first, const DateTime& issued) {
    Forecast forecast{.source = u"test", .issued = issued, .placeFeedName = u"x", .days = {}};
    for (int i = 0; i < 5; ++i)
        forecast.days.push_back({.date = AddDays(first, i)});
    return forecast;
}

DateTime At(int month, int day, int hour, int minute = 0) {
    return {.date = {2026, month, day}, .hour = hour, .minute = minute};
}

TEST(Freshness, GoesByTheIssueTimeAndTheCitysDate) {
    const struct {
        const char* name;
        Date firstDay;
        DateTime issued;
        DateTime utcNow;
        Date cityToday;
        bool stale;
        std::size_t daysGone;
    } rows[] = {
        {"twelve hours", {2026, 11, 22}, At(11, 22, 6), At(11, 22, 18), {2026, 11, 22}, false, 0},
        {"a minute more", {2026, 11, 22}, At(11, 22, 6), At(11, 22, 18, 1), {2026, 11, 22}, true, 0},
        {"Kiritimati is a day ahead", {2026, 11, 23}, At(11, 22, 10), At(11, 22, 11), {2026, 11, 23}, false, 0},
        {"all days over though newly issued", {2026, 11, 17}, At(11, 22, 9), At(11, 22, 10), {2026, 11, 22}, true, 5},
        {"from the future", {2026, 12, 1}, At(12, 1, 10), At(11, 22, 9), {2026, 11, 22}, true, 0},
    };
    for (const auto& row : rows) {
        const auto freshness = FreshnessOf(FiveDays(row.firstDay, row.issued), row.utcNow, row.cityToday);
        EXPECT_EQ(freshness.stale, row.stale) << row.name;
        EXPECT_EQ(freshness.daysGone, row.daysGone) << row.name;
    }
    EXPECT_EQ(FreshnessOf(FiveDays({2026, 11, 22}, At(11, 22, 18)), At(11, 22, 17, 30), {2026, 11, 22}).ageInMinutes,
              -30);
}

TEST(Freshness, UtcIsTheDeviceClockWithoutItsReference) {
    const struct {
        ClockOffset reference;
        DateTime utc;
    } rows[] = {
        {{14, 0}, At(11, 21, 20)},     {{-11, 0}, At(11, 22, 21)},      {{5, 30}, At(11, 22, 4, 30)},
        {{5, -30}, At(11, 22, 4, 30)}, {{-3, -30}, At(11, 22, 13, 30)}, {{0, -30}, At(11, 22, 10, 30)},
    };
    for (const auto& row : rows)
        EXPECT_EQ(UtcOf(At(11, 22, 10), row.reference), row.utc) << row.reference.hours << ":" << row.reference.minutes;
}

TEST(Freshness, OldDaysAreNeverToday) {
    const Date today{2026, 12, 31};
    EXPECT_EQ(NameOfDay(today, today, false), DayName::kToday);
    EXPECT_EQ(NameOfDay({2027, 1, 1}, today, false), DayName::kTomorrow);
    EXPECT_EQ(NameOfDay({2026, 12, 30}, today, false), DayName::kDate);
    EXPECT_EQ(NameOfDay(today, today, true), DayName::kDate);
}

}  // namespace
}  // namespace rlx
