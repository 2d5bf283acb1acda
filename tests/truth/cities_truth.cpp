// The clocks of all shipped cities beside the system's tz database, for every hour of a year:
//   truth_cities DATA_FOLDER            the rules of the list, in their year
//   truth_cities DATA_FOLDER YEAR       the rules of the list, in another year
//   truth_cities DATA_FOLDER YEAR new   rules that the system makes for that year
// TZDIR names another tz database than the system's. Prints Markdown tables; fails when an hour that differs has no
// documented cause.
#include <array>
#include <cstdio>
#include <iostream>
#include <map>
#include <set>
#include <tuple>

#include "base/text.h"
#include "clocks/city_clock.h"
#include "places/city_list.h"
#include "places/city_times.h"
#include "places/rules_date.h"
#include "places/rules_refresh.h"
#include "platform/cctz/cctz_time_zones.h"
#include "platform/fake/fixed_clock.h"
#include "platform/fake/memory_file_system.h"
#include "platform/fake/memory_object_store.h"
#include "platform/fake/scripted_message_boxes.h"
#include "platform/posix/posix_file_system.h"
#include "shell/resources.h"
#include "truth/clock_causes.h"

namespace rlx::truth {
namespace {

constexpr std::array kClockNames{"World Clocks, device on UTC", "Reminders, device on UTC",
                                 "Home city of the device's clock"};
constexpr int kMostOtherReleases = 5;  // of a hundred zones

/// Cities that no clock tells apart.
struct Group {
    std::string zone;  ///< one of those with these clocks
    ZoneYear year;
    CityRecord city;
    std::int64_t cities = 0;
};

struct Zone {
    ZoneYear year;
    std::optional<RuleFields> rule;  ///< what the system makes of it
};

struct Tally {
    std::int64_t hours = 0;
    std::int64_t cities = 0;
};

std::int64_t Second(int year, int month, int day) {
    return SecondNumber({{year, month, day}, 0, 0, 0, 0});
}

class CCitiesTruth {
public:
    explicit CCitiesTruth(CityList list) : m_list(std::move(list)) {}

    void MakeRules(const Date& day) {
        for (CityFields& city : m_list.cities) {
            const auto rule = RuleOfZone(m_zones, ToUtf8(city.zone), day);
            if (rule) std::tie(city.gmt, city.dst) = std::tie(rule->gmt, rule->dst);
        }
    }

    bool Compare(int year, const Date& rulesDay) {
        m_files.files[kList] = CityListBytes(m_list).value_or("");
        if (m_cities.EnsureCreated() != CityListState::kReady || m_cities.Count() == 0) return false;
        for (const Group& group : Groups(year, rulesDay))
            CompareGroup(group, year);
        Print(year);
        return m_other == 0 && m_released.size() * 100 <= m_seen.size() * kMostOtherReleases;
    }

private:
    static constexpr const char* kList = "/cities.lst";

    std::vector<Group> Groups(int year, const Date& rulesDay) {
        std::map<std::tuple<ZoneYear, std::u16string, std::u16string>, Group> groups;
        for (const CityFields& fields : m_list.cities) {
            const auto index = m_cities.IndexOf(fields.Place());
            const CityRecord city = m_cities.Record(index.value()).value();
            const std::string zone = ToUtf8(fields.zone);
            const ZoneYear zoneYear = YearOf(zone, city, year, rulesDay);
            Group& group = groups[{zoneYear, city.gmtText, m_cities.GetDstRule(city.index)}];
            if (group.cities++ == 0) group = {zone, zoneYear, city, 1};
        }
        std::vector<Group> result;
        for (auto& [key, group] : groups)
            result.push_back(std::move(group));
        return result;
    }

    ZoneYear YearOf(const std::string& name, const CityRecord& city, int year, const Date& rulesDay) {
        const auto [entry, isNew] = m_seen.try_emplace(name);
        Zone& zone = entry->second;
        if (isNew) {
            const CZoneClock clock(name);
            const std::int64_t begin = Second(year, 1, 1) - 2 * kDay;
            const std::int64_t day = SecondNumber({rulesDay, 0, 0, 0, 0});
            zone.year = {year,  rulesDay.year, clock.Changes(begin, Second(year + 1, 1, 3)),
                         false, false,         clock.OffsetAt(begin)};
            zone.year.isSettled = clock.Changes(day, day + 365 * kDay).empty();
            if (clock.IsKnown()) zone.rule = RuleOfZone(m_zones, name, rulesDay);
        }
        ZoneYear result = zone.year;
        result.isOtherRelease = !zone.rule || zone.rule->gmt != city.gmtText || RuleOf(*zone.rule) != city.dstRule;
        if (result.isOtherRelease) m_released.insert(name);
        return result;
    }

    static DstRule RuleOf(const RuleFields& fields) {
        std::u16string text;
        for (const std::u16string& field : fields.dst)
            text += field + u":";
        return ParseDstRule(text);
    }

    void CompareGroup(const Group& group, int year) {
        const CZoneClock clock(group.zone);
        std::set<std::pair<int, std::size_t>> causes;
        for (std::int64_t utc = Second(year, 1, 1); utc < Second(year + 1, 1, 1); utc += kHour) {
            const std::int64_t truth = clock.OffsetAt(utc);
            for (int which = 0; which < 3; ++which) {
                const auto at = ReadingOf(static_cast<Clock>(which), group, utc, truth);
                m_hours[which] += group.cities;
                if (at.shown == truth) continue;
                const std::size_t cause = CauseOf(at);
                m_tallies[which][cause].hours += group.cities;
                if (causes.emplace(which, cause).second) m_tallies[which][cause].cities += group.cities;
            }
        }
    }

    Reading ReadingOf(Clock clock, const Group& group, std::int64_t utc, std::int64_t truth) {
        Reading at{clock, group.city, group.year, utc, utc, truth, 0};
        const DateTime now = DateTimeOfSecondNumber(utc);
        if (clock == Clock::kWorld) {
            const ClockReading shown = m_onUtc.WorldClock(group.city.index, now);
            const std::int64_t days = DayNumber({shown.year, shown.month, shown.day});
            at.shown = days * kDay + shown.hour * kHour + shown.minute * 60 + shown.second - utc;
        } else if (clock == Clock::kReminders) {
            const CityZone city{group.city.gmt, group.city.dstRule};
            at.shown = SecondNumber(CityTimeAt(city, {0, {}}, now)) - utc;
        } else {
            at.device = utc + truth;
            CCityTimes times(m_cities, m_clock, m_texts, {group.city.index, {}, 0});
            const ClockOffset offset = times.Reference(DateTimeOfSecondNumber(at.device));
            at.shown = std::int64_t{offset.hours} * kHour + std::int64_t{offset.minutes} * 60;
        }
        return at;
    }

    std::size_t CauseOf(const Reading& at) {
        for (std::size_t i = 0; i < kCauses; ++i) {
            if (kClockCauses[i].holds(at)) return i;
        }
        if (m_other++ < 20) {
            std::cout << "without a cause: " << ToUtf8(at.city.name) << ", " << kClockNames[static_cast<int>(at.clock)]
                      << ", hour " << (at.utc - Second(at.zone.year, 1, 1)) / kHour << " of the year, shown "
                      << at.shown << " s east, zone " << at.truth << " s east\n";
        }
        return kCauses;
    }

    void Print(int year) const {
        std::cout << "Year " << year << ", " << m_cities.Count() << " cities of " << m_seen.size() << " zones.\n";
        for (const std::string& zone : m_released)
            std::cout << "This tz database has another rule: " << zone << "\n";
        for (int which = 0; which < 3; ++which) {
            std::cout << "\n| " << kClockNames[which] << " | cities | hours | share |\n|---|---:|---:|---:|\n";
            std::int64_t same = m_hours[which];
            for (std::size_t i = 0; i <= kCauses; ++i) {
                const auto found = m_tallies[which].find(i);
                const Tally tally = found == m_tallies[which].end() ? Tally{} : found->second;
                same -= tally.hours;
                if (tally.hours > 0 || i == kCauses) Row(i < kCauses ? kClockCauses[i].name : "others", tally, which);
            }
            Row("same as the zone", {same, static_cast<std::int64_t>(m_cities.Count())}, which);
            Row("all", {m_hours[which], static_cast<std::int64_t>(m_cities.Count())}, which);
        }
    }

    void Row(const char* name, const Tally& tally, int which) const {
        std::printf("| %s | %lld | %lld | %.3f %% |\n", name, static_cast<long long>(tally.cities),
                    static_cast<long long>(tally.hours),
                    100.0 * static_cast<double>(tally.hours) / static_cast<double>(m_hours[which]));
    }

    CityList m_list;
    CCctzTimeZones m_zones;
    CMemoryObjectStore m_store;
    CMemoryFileSystem m_files;
    CScriptedMessageBoxes m_boxes;
    const CResources m_texts;
    mutable CCityDatabase m_cities{m_store, m_files, m_boxes, m_texts, kList};
    CFixedClock m_clock;
    CCityTimes m_onUtc{m_cities, m_clock, m_texts, {0, {}, 1}};
    std::array<std::int64_t, 3> m_hours{};
    std::array<std::map<std::size_t, Tally>, 3> m_tallies;
    std::map<std::string, Zone> m_seen;
    std::set<std::string> m_released;
    std::int64_t m_other = 0;
};

int Run(const std::vector<std::string>& words) {
    CPosixFileSystem files;
    auto list = ReadCityList(files, words.at(1) + "/cities.lst");
    const auto day = ReadRulesDate(files, words.at(1));
    if (!list || !day) return 1;
    const int year = words.size() > 2 ? std::stoi(words[2]) : day->year;
    CCitiesTruth truth(std::move(*list));
    const Date rulesDay = words.size() > 3 ? RulesDay(year, *day) : *day;
    if (words.size() > 3) truth.MakeRules(rulesDay);
    return truth.Compare(year, rulesDay) ? 0 : 1;
}

}  // namespace
}  // namespace rlx::truth

int main(int count, char** words) {
    if (count < 2) return 2;
    return rlx::truth::Run({words, words + count});
}
