#include "places/city_times.h"

#include "base/text.h"
#include "places/cities_fixture.h"

namespace rlx {
namespace {

using test::At;

// In the order of their indexes.
enum City : CityIndex { kKolkata, kLondon, kMidnight, kParis, kSydney, kNobody };

class CityTimes : public test::CitiesFixture {
protected:
    void SetUp() override {
        ASSERT_EQ(Build("5\n"
                        "z;Kolkata;India;88;22;530;0;0;0;0;0\n"
                        "z;London;United Kingdom;0;51;0;1;88;1;298;2\n"
                        "z;Midnight;Nowhere;0;0;0;1;88;0;298;0\n"
                        "z;Paris;France;2;48;1;1;88;2;298;3\n"
                        "z;Sydney;Australia;151;-33;10;1;277;2;95;3\n"),
                  CityListState::kReady);
    }
    /// Offset, "*" under daylight saving, time and date as the clock of `city` shows them.
    static std::string Face(const ClockReading& reading) {
        return std::to_string(reading.effectiveGmt) + (reading.dst ? "* " : " ") + ToUtf8(reading.timeText) + " " +
               ToUtf8(reading.dateText);
    }
};

TEST_F(CityTimes, WorldClocksRunOnTheHomeCityOrTheZone) {
    const struct {
        const char* name;
        City home;
        bool syncZone;
        int bias;
        const char* now;
        City city;
        const char* face;
    } rows[] = {
        {"summer on both sides", kParis, false, 0, "2026-07-15 12:00:00", kLondon, "1* 11:00:00 15/07 Wed"},
        {"summer here only", kParis, false, 0, "2026-07-15 12:00:00", kKolkata, "530 15:30:00 15/07 Wed"},
        {"the end hour itself belongs to it", kParis, false, 0, "2026-10-25 03:00:00", kParis, "2* 03:00:00 25/10 Sun"},
        {"a start day begins at standard midnight", kLondon, false, 0, "2026-03-28 22:59:59", kParis,
         "1 23:59:59 28/03 Sat"},
        {"one second on", kLondon, false, 0, "2026-03-28 23:00:00", kParis, "2* 01:00:00 29/03 Sun"},
        {"there 2027, here 2026", kKolkata, false, 0, "2026-12-31 23:59:00", kSydney, "11* 05:29:00 01/01 Fri"},
        {"by the zone: no daylight saving in it", kParis, true, -60, "2026-07-15 12:00:00", kLondon,
         "1* 12:00:00 15/07 Wed"},
        {"no such city: GMT", kParis, false, 0, "2026-01-15 12:00:00", kNobody, "0 11:00:00 15/01 Thu"},
    };
    for (const auto& row : rows) {
        clock.SetBias(row.bias);
        CCityTimes times = Times({row.home, {}, row.syncZone ? 1U : 0U});
        const ClockReading reading = times.WorldClock(row.city, At(row.now));
        EXPECT_EQ(Face(reading), row.face) << row.name;
        EXPECT_EQ(times.EffectiveGmt(row.city, At(row.now)), reading.effectiveGmt) << row.name;
    }
}

TEST_F(CityTimes, HomeClockShowsTheDeviceUnlessSynchronised) {
    const struct {
        const char* name;
        City home;
        bool syncZone;
        const char* now;
        const char* face;
    } rows[] = {
        {"start day, before the hour", kParis, false, "2026-03-29 00:00:00", "2* 00:00:00 29/03/2026    Sun"},
        {"a start at midnight", kMidnight, false, "2026-03-29 00:30:00", "1* 00:30:00 29/03/2026    Sun"},
        {"end day, behind the hour", kParis, false, "2026-10-25 23:59:59", "2* 23:59:59 25/10/2026    Sun"},
        {"no such city", kNobody, false, "2026-07-15 12:10:11", "0 12:10:11 15/07/2026    Wed"},
        {"by the zone, an hour ahead in summer", kParis, true, "2026-07-15 23:10:11", "2* 00:10:11 16/07/2026    Thu"},
    };
    clock.SetBias(-60);
    for (const auto& row : rows) {
        CCityTimes times = Times({row.home, {}, row.syncZone ? 1U : 0U});
        EXPECT_EQ(Face(times.HomeClock(At(row.now))), row.face) << row.name;
    }
}

}  // namespace
}  // namespace rlx
