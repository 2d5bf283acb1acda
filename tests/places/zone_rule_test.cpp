#include "places/zone_rule.h"

#include "base/text.h"
#include "platform/cctz/cctz_time_zones.h"
#include "platform/fake/fixed_time_zones.h"

namespace rlx {
namespace {

std::string Text(const std::optional<RuleFields>& rule) {
    if (!rule) return "nothing";
    std::string text = Narrow(rule->gmt);
    for (const auto& field : rule->dst)
        text += ";" + Narrow(field);
    return text;
}

TEST(ZoneRule, IsTheOneThatFitsTheYearBest) {
    const auto utc = [](int month, int day, int hour, int minute = 0) {
        return SecondNumber({{2026, month, day}, hour, minute, 0, 0});
    };
    constexpr int kHour = 3600;
    using Offsets = std::vector<OffsetChange>;
    const Offsets paris{
        {0, kHour}, {utc(3, 29, 1), 2 * kHour}, {utc(10, 25, 1), kHour}, {utc(12, 31, 0) + 88 * 86400, 0}};
    const struct {
        const char* name;
        Offsets offsets;
        Date day;
        const char* rule;
    } rows[] = {
        {"never", {{0, 19800}}, {2026, 6, 1}, "530;0;0;0;0;0"},
        {"northern", paris, {2026, 6, 1}, "1;1;88;2;298;3"},
        {"southern",
         {{0, 11 * kHour}, {utc(4, 4, 16), 10 * kHour}, {utc(10, 3, 16), 11 * kHour}},
         {2026, 1, 1},
         "10;1;277;2;95;3"},
        {"for good from March on, asked in January",
         {{0, -8 * kHour}, {utc(3, 8, 10), -7 * kHour}},
         {2026, 1, 1},
         "-8;1;67;2;1;0"},
        {"for good from March on, asked in June",
         {{0, -8 * kHour}, {utc(3, 8, 10), -7 * kHour}},
         {2026, 6, 1},
         "-7;0;0;0;0;0"},
        {"half an hour cannot be said",
         {{0, 39600}, {utc(4, 4, 15), 37800}, {utc(10, 3, 15, 30), 39600}},
         {2026, 1, 1},
         "11;0;0;0;0;0"},
        {"changes at quarters are written as hours",
         {{0, 49500}, {utc(4, 4, 14), 45900}, {utc(9, 26, 14), 49500}},
         {2026, 1, 1},
         "1245;1;270;3;95;4"},
        {"twenty minutes cannot be written", {{0, 1200}}, {2026, 1, 1}, "nothing"},
    };
    CFixedTimeZones zones;
    for (const auto& row : rows) {
        zones.zones["Z"] = row.offsets;
        EXPECT_EQ(Text(RuleOfZone(zones, "Z", row.day)), row.rule) << row.name;
    }
    EXPECT_EQ(Text(RuleOfZone(zones, "Y", {2026, 1, 1})), "nothing");
}

TEST(TimeZones, StayWithinTheFolderOfZones) {
    CCctzTimeZones zones;
    for (const char* name : {"", "No/Such", "/etc/localtime", "../zoneinfo/UTC", "Europe/Paris\n", "Europe"})
        EXPECT_FALSE(zones.Offsets(name, 0, 1)) << name;
    EXPECT_TRUE(zones.Offsets("Europe/Paris", 0, 1));
}

}  // namespace
}  // namespace rlx
