#include "places/city_info.h"

#include "base/text.h"
#include "places/cities_fixture.h"
#include "places/home_distance.h"
#include "shell/resources.h"

namespace rlx {
namespace {

using test::At;

class CityInfo : public test::CitiesFixture {
protected:
    void SetUp() override {
        ASSERT_EQ(Build("4\n"
                        "z;Adelaide;Australia;138.6;-34.9;930;1;277;2;95;3\n"
                        "z;Honolulu;United States;-157.9;21.3;-10;0;88;2;298;3\n"
                        "z;London;United Kingdom;-0.1;51.5;0;1;88;1;298;2\n"
                        "z;Troll;Antarctica;2.5;-72;0;2;88;1;298;3\n"),
                  CityListState::kReady);
    }
    CitySunDetails Details(CityIndex index, const char* now) {
        CCityTimes times = Times({1, {}, 1});  // by a zone without bias: the device shows GMT
        return SunDetailsOf(cities, times, texts, index, At(now));
    }
};

TEST_F(CityInfo, DescribesACity) {
    EXPECT_EQ(ToUtf8(CityInfoText(Details(2, "2026-07-01 12:00:00"), texts)),
              "City: London\nCountry: United Kingdom\nLong: -0.1 Lat: 51.5\nDaylight saving: Observing now\n"
              "DST start/end: 29/3/2026 - 25/10/2026\nGmt: 0h + 1h (DST)");
    EXPECT_EQ(ToUtf8(CityInfoText(Details(1, "2026-07-01 12:00:00"), texts)),
              "City: Honolulu\nCountry: United States\nLong: -157.9 Lat: 21.3\nDaylight saving: Never observing\n"
              "DST start/end: -\nGmt: -h10");
    EXPECT_EQ(ToUtf8(CityInfoText(Details(0, "2026-07-01 12:00:00"), texts)),
              "City: Adelaide\nCountry: Australia\nLong: 138.6 Lat: -34.9\nDaylight saving: Not observing now\n"
              "DST start/end: 4/10/2026 - 5/4/2027\nGmt: 9h30");
}

TEST_F(CityInfo, HandsTheSunDetailsWhatTheyNeed) {
    EXPECT_EQ(Details(0, "2026-11-01 12:00:00"),
              (CitySunDetails{u"Adelaide", u"Australia", u"138.6", u"-34.9", u"Observing now", u"4/10/2026 - 5/4/2027",
                              u"9h30 + 1h (DST)", u"1030"}));
    EXPECT_EQ(Details(9, "2026-07-01 12:00:00"),
              (CitySunDetails{u"", u"", u"", u"", u"Not observing now", u"31/12/2025 - 31/12/2025", u"h", u"0"}));
}

TEST_F(CityInfo, DecidesByTheHourThatTheClockShows) {
    const struct {
        const char* name;
        const char* now;
        const char16_t* offset;
    } rows[] = {
        // London's clock goes by the day: from 00:00 GMT on 29 March it shows an hour more, 01:00 and observing.
        {"the evening before", "2026-03-28 23:59:59", u"0"},
        {"the clock shows 01:00", "2026-03-29 00:00:00", u"1"},
        {"the clock shows 02:59, minutes do not count", "2026-10-25 01:59:59", u"1"},
        {"the clock shows 03:00", "2026-10-25 02:00:00", u"0"},
    };
    for (const auto& row : rows)
        EXPECT_EQ(Details(2, row.now).effectiveGmt, row.offset) << row.name;
}

ClockReading ReadingAt(int day, int hour, int minute) {
    ClockReading reading;
    reading.year = 2026;
    reading.month = 11;
    reading.day = day;
    reading.hour = hour;
    reading.minute = minute;
    reading.dateText = u"24/11 Tue ";
    return reading;
}

TEST(HomeDistance, TellsDayAndMinutes) {
    const CResources texts;
    const ClockReading home = ReadingAt(22, 21, 10);
    const struct {
        ClockReading city;
        const char* note;
        const char* words;
    } rows[] = {
        {ReadingAt(22, 21, 10), "", "same time as home"},
        {ReadingAt(22, 15, 10), "-6:00", "6:00 behind home"},
        {ReadingAt(23, 1, 40), "tomorrow, +4:30", "4:30 ahead of home"},
        {ReadingAt(21, 23, 55), "yesterday, -21:15", "21:15 behind home"},
        {ReadingAt(24, 0, 0), "24/11 Tue, +26:50", "26:50 ahead of home"},
    };
    for (const auto& row : rows) {
        EXPECT_EQ(ToUtf8(HomeNote(home, row.city, texts)), row.note);
        EXPECT_EQ(ToUtf8(DistanceText(MinutesAhead(home, row.city), texts)), row.words);
    }
}

}  // namespace
}  // namespace rlx
