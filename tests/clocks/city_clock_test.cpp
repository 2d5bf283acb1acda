#include "clocks/city_clock.h"

namespace rlx {
namespace {

CityZone Zone(GmtOffset gmt, std::u16string_view rule) {
    return {gmt, ParseDstRule(rule)};
}

// Rules of 2026.
const CityZone kAmsterdam = Zone(1, u"1:88:2:298:3");
const CityZone kNewYork = Zone(-5, u"1:67:2:305:2");
const CityZone kSydney = Zone(10, u"1:277:2:95:3");
const CityZone kAdelaide = Zone(930, u"1:277:2:95:3");
const CityZone kKolkata = Zone(530, u"0:0:0:0:0");
const CityZone kTokyo = Zone(9, u"0:0:0:0:0");

const DeviceZone kHomeAmsterdam{std::nullopt, kAmsterdam};
const DeviceZone kHomeSydney{std::nullopt, kSydney};
const DeviceZone kDeviceParis{-60, {}};
const DeviceZone kDeviceKolkata{-330, {}};

DateTime At(int month, int day, int hour, int minute) {
    return {{2026, month, day}, hour, minute, 0, 0};
}

struct Row {
    const char* what;
    CityZone city;
    DeviceZone device;
    DateTime shown;
    DateTime expected;
    TimeOnClock lies = TimeOnClock::kOnce;
    std::int64_t later = 0;
};

const Row kRows[] = {
    {"summer of home", kTokyo, kHomeAmsterdam, At(7, 1, 5, 0), At(6, 30, 22, 0)},
    {"summer of both", kNewYork, kHomeAmsterdam, At(7, 1, 20, 0), At(7, 2, 2, 0)},
    {"city changed, home not yet", kNewYork, kHomeAmsterdam, At(3, 20, 9, 0), At(3, 20, 14, 0)},
    {"half hours and summer", kAdelaide, kHomeAmsterdam, At(12, 31, 9, 30), At(12, 31, 0, 0)},
    {"before the city goes forward", kSydney, kHomeAmsterdam, At(10, 4, 9, 59), At(10, 4, 1, 59)},
    {"city goes forward", kSydney, kHomeAmsterdam, At(10, 4, 10, 30), At(10, 4, 2, 30), TimeOnClock::kSkipped},
    {"city goes back", kNewYork, kHomeAmsterdam, At(10, 31, 20, 30), At(11, 1, 1, 30), TimeOnClock::kTwice},
    {"a southern summer ends with the year",
     kSydney,
     kHomeAmsterdam,
     {{2027, 1, 1}, 9, 30, 0, 0},
     At(12, 31, 23, 30),
     TimeOnClock::kTwice},
    {"home goes forward", kTokyo, kHomeAmsterdam, At(3, 29, 9, 30), At(3, 29, 1, 30)},
    {"home leaves it out", kAmsterdam, kHomeAmsterdam, At(3, 29, 2, 30), At(3, 29, 3, 30), TimeOnClock::kSkipped},
    {"home's hour, the first time", kTokyo, kHomeAmsterdam, At(10, 25, 9, 30), At(10, 25, 2, 30)},
    {"home's hour, again", kTokyo, kHomeAmsterdam, At(10, 25, 10, 30), At(10, 25, 2, 30), TimeOnClock::kOnce, 3600},
    {"southern home has gone forward", kTokyo, kHomeSydney, At(10, 4, 2, 30), At(10, 4, 4, 30)},
    {"the device's zone knows no summer", kTokyo, kDeviceParis, At(7, 1, 9, 0), At(7, 1, 1, 0)},
    {"the device's zone with half hours", kTokyo, kDeviceKolkata, At(7, 1, 9, 0), At(7, 1, 4, 30)},
};

TEST(CityClock, TimesOfACityFallOnTheDevicesClock) {
    for (const Row& row : kRows) {
        const DeviceMoment moment = DeviceTimeOf(row.city, row.device, row.shown);
        EXPECT_EQ(moment.device, row.expected) << row.what;
        EXPECT_EQ(moment.lies, row.lies) << row.what;
        EXPECT_EQ(moment.later, row.later) << row.what;
    }
}

/// Whatever the clock shows has a moment at which it shows that, and the moment found is the first.
TEST(CityClock, EveryTimeThatIsShownIsFoundAgain) {
    for (const CityZone& city : {kAmsterdam, kNewYork, kSydney, kAdelaide, kKolkata}) {
        for (const DeviceZone& zone : {kHomeSydney, kDeviceParis, kDeviceKolkata, kHomeAmsterdam}) {
            for (std::int64_t second = SecondNumber(At(1, 1, 0, 0)); second < SecondNumber(At(12, 31, 0, 0));
                 second += 7140) {
                const DateTime shown = CityTimeAt(city, zone, DateTimeOfSecondNumber(second));
                const DeviceMoment moment = DeviceTimeOf(city, zone, shown);
                if (moment.later != 0 || moment.lies == TimeOnClock::kSkipped) continue;
                EXPECT_EQ(CityTimeAt(city, zone, moment.device), shown);
                EXPECT_LE(SecondNumber(moment.device), second);
            }
        }
    }
}

}  // namespace
}  // namespace rlx
