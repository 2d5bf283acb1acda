#include <cstdlib>
#include <ctime>
#include <fstream>
#include <iostream>
#include <iterator>

#include "base/text.h"
#include "places/cities_fixture.h"
#include "support/paths.h"

// The shipped cities against the machine's own tz database: every six hours of the year for which their rules are made.
namespace rlx {
namespace {

constexpr int kRulesYear = 2026;

struct RealCity {
    const char16_t* place;
    const char* zone;
    bool southern = false;  ///< from January to the end of its summer the clock is an hour behind, by design
};

constexpr RealCity kCities[] = {
    {u"London:United Kingdom", "Europe/London"},
    {u"Paris:France", "Europe/Paris"},
    {u"Berlin:Germany", "Europe/Berlin"},
    {u"Athens:Greece", "Europe/Athens"},
    {u"Reykjav\u00EDk:Iceland", "Atlantic/Reykjavik"},
    {u"New York:United States", "America/New_York"},
    {u"Los Angeles:United States", "America/Los_Angeles"},
    {u"Honolulu:United States", "Pacific/Honolulu"},
    {u"St. John's:Canada", "America/St_Johns"},
    {u"Tokyo:Japan", "Asia/Tokyo"},
    {u"Mumbai:India", "Asia/Kolkata"},
    {u"Kathmandu:Nepal", "Asia/Kathmandu"},
    {u"Singapore:Singapore", "Asia/Singapore"},
    {u"Dubai:United Arab Emirates", "Asia/Dubai"},
    {u"Nairobi:Kenya", "Africa/Nairobi"},
    {u"Sydney:Australia", "Australia/Sydney", true},
    {u"Adelaide:Australia", "Australia/Adelaide", true},
    {u"Auckland:New Zealand", "Pacific/Auckland", true},
};

/// The zone of the process, put back at the end.
class CZone {
public:
    CZone() : m_before(std::getenv("TZ") == nullptr ? "" : std::getenv("TZ")), m_wasSet(std::getenv("TZ") != nullptr) {}
    ~CZone() {
        if (m_wasSet)
            Use(m_before.c_str());
        else
            unsetenv("TZ");
        tzset();
    }
    CZone(const CZone&) = delete;
    CZone& operator=(const CZone&) = delete;

    static void Use(const char* zone) {
        setenv("TZ", zone, 1);
        tzset();
    }

private:
    std::string m_before;
    bool m_wasSet;
};

DateTime WallClock(std::int64_t utc) {
    const std::time_t time = utc;
    std::tm local{};
    localtime_r(&time, &local);
    return {{local.tm_year + 1900, local.tm_mon + 1, local.tm_mday}, local.tm_hour, local.tm_min, local.tm_sec, 0};
}

DateTime Shown(const ClockReading& reading) {
    return {
        {reading.year, reading.month, reading.day}, static_cast<int>(reading.hour), reading.minute, reading.second, 0};
}

class RealCities : public test::CitiesFixture {
protected:
    void SetUp() override {
        std::ifstream list(std::string(kDataFile), std::ios::binary);
        ASSERT_EQ(Build({std::istreambuf_iterator<char>(list), {}}), CityListState::kReady);
    }
    static inline const std::string kDataFile = std::string(test::kDataDir) + "/cities.lst";

    std::optional<CityIndex> IndexOf(std::u16string_view place) {
        const auto database = store.Open(kCitiesDatabase);
        const auto record = database->SeekValue(PROP_PLACE, place);
        if (!record) return std::nullopt;
        return static_cast<CityIndex>(database->PositionOf(PROP_PLACE, *record).value());
    }
};

TEST_F(RealCities, StandWhereTheDefaultClocksLookForThem) {
    EXPECT_GE(cities.Count(), 1000U);
    EXPECT_EQ(cities.GetPlace(565), u"London:United Kingdom");
    EXPECT_EQ(cities.GetPlace(684), u"New York:United States");
    EXPECT_EQ(cities.GetPlace(756), u"Paris:France");
    EXPECT_EQ(cities.GetPlace(988), u"Tokyo:Japan");
}

TEST_F(RealCities, ShowTheTimeOfTheirZones) {
    const CZone zone;
    CCityTimes times = Times({0, {}, 1});  // a zone without bias: the device shows UTC
    const std::int64_t first = SecondNumber({{kRulesYear, 1, 2}, 0, 0, 0, 0});
    const std::int64_t last = SecondNumber({{kRulesYear, 12, 31}, 0, 0, 0, 0});
    int rows = 0;
    int onChangeDays = 0;
    int southern = 0;
    std::int64_t worst = 0;
    for (const RealCity& city : kCities) {
        const auto index = IndexOf(city.place);
        ASSERT_TRUE(index.has_value()) << ToUtf8(city.place);
        const DstRule rule = cities.Record(*index)->dstRule;
        CZone::Use(city.zone);
        for (std::int64_t utc = first; utc < last; utc += 6 * 3600, ++rows) {
            const DateTime truth = WallClock(utc);
            const DateTime shown = Shown(times.WorldClock(*index, DateTimeOfSecondNumber(utc)));
            const std::int64_t error = SecondNumber(shown) - SecondNumber(truth);
            worst = std::max(worst, std::abs(error));
            if (error == 0) continue;
            // Decided by the day: all of the start day and of the end day is summer.
            const int day = DayOfYear(truth.date);
            const bool changeDay = day == rule.startDay || day == rule.endDay || day == rule.endDay + 1;
            const bool lostSummer = city.southern && day <= rule.endDay;
            onChangeDays += changeDay && !lostSummer ? 1 : 0;
            southern += lostSummer ? 1 : 0;
            EXPECT_EQ(error, lostSummer ? -3600 : 3600) << city.zone << " " << day;
            EXPECT_TRUE(changeDay || lostSummer) << city.zone << " day " << day << " hour " << truth.hour;
        }
    }
    std::cout << rows << " readings of " << std::size(kCities) << " cities, worst " << worst << " s; " << onChangeDays
              << " off on days of change, " << southern << " in southern summers after New Year\n";
    EXPECT_EQ(rows, 18 * 363 * 4);
    EXPECT_LE(onChangeDays, 18 * 2 * 4);
    EXPECT_GT(southern, 3 * 90 * 4) << "the southern summer ends with the year, as documented";
}

}  // namespace
}  // namespace rlx
