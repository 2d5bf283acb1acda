#include "truth/clock_causes.h"

#include <algorithm>

#include "base/calendar.h"

namespace rlx::truth {
namespace {

/// The fields of a city's rule as the list's format words them, laid on a year of days; seconds.
struct Plain {
    Plain(const CityRecord& city, int year)
        : standard(SecondsOf(SplitGmt(city.gmt))),
          daylight(standard + std::int64_t{city.dstRule.hours} * kHour),
          start(Moment(year, city.dstRule.startDay, city.dstRule.startHour)),
          end(Moment(year, city.dstRule.endDay, city.dstRule.endHour)),
          endDay(Moment(year, city.dstRule.endDay, 0)),
          isSouthern(end < start) {}

    std::int64_t standard;  // east
    std::int64_t daylight;
    std::int64_t start;   // standard time
    std::int64_t end;     // daylight time
    std::int64_t endDay;  // its first moment
    bool isSouthern;

    std::int64_t StartUtc() const { return start - standard; }
    std::int64_t EndUtc() const { return end - daylight; }

private:
    static std::int64_t SecondsOf(const ClockOffset& offset) { return offset.hours * kHour + offset.minutes * 60; }
    static std::int64_t Moment(int year, int day, int hour) {
        return DayNumber({year, 1, 1}) * kDay + (day - 1) * kDay + hour * kHour;
    }
};

bool Within(std::int64_t value, std::int64_t a, std::int64_t b) {
    return std::min(a, b) <= value && value <= std::max(a, b);
}

bool Forgets(const Reading& at, const Plain& rule) {
    return at.city.dstRule.observes && at.truth == rule.daylight && at.shown == rule.standard;
}

bool Adds(const Reading& at, const Plain& rule) {
    return at.city.dstRule.observes && at.truth == rule.standard && at.shown == rule.daylight;
}

// The period that is looked at begins in the year that the device's clock shows.
bool IsSouthernNewYear(const Reading& at) {
    const Plain rule(at.city, DateTimeOfSecondNumber(at.device).date.year);
    return rule.isSouthern && Forgets(at, rule) && at.utc < rule.EndUtc();
}

// A world clock is in daylight saving for all of the start day and all of the end day, days of its standard time.
bool IsEarlyOnStartDay(const Reading& at) {
    const Plain rule(at.city, at.zone.year);
    return at.clock == Clock::kWorld && Adds(at, rule) && at.utc < rule.StartUtc() &&
           at.utc + rule.standard >= rule.start / kDay * kDay;
}

bool IsLateOnEndDay(const Reading& at) {
    const Plain rule(at.city, at.zone.year);
    return at.clock == Clock::kWorld && Adds(at, rule) && at.utc >= rule.EndUtc() &&
           at.utc + rule.standard < rule.endDay + kDay;
}

// A reminder's clock changes when the device's clock shows the hour of the change; the end belongs to the period.
bool IsByTheDeviceClock(const Reading& at) {
    const Plain rule(at.city, at.zone.year);
    const std::int64_t ahead = at.device - at.utc;
    return at.clock == Clock::kReminders && (Forgets(at, rule) || Adds(at, rule)) &&
           (Within(at.utc, rule.StartUtc(), rule.start - ahead) || Within(at.utc, rule.EndUtc(), rule.end - ahead));
}

// The home city's clock is the device's own, which shows the last hour of daylight saving once more behind it.
bool IsHourShownTwice(const Reading& at) {
    const Plain rule(at.city, at.zone.year);
    return at.clock == Clock::kHome && Adds(at, rule) && at.utc >= rule.EndUtc() && at.device <= rule.end;
}

// A zone that changes no clock in the twelve months from the day of the rules on has its offset of that day.
bool IsBeforeSettling(const Reading& at) {
    return at.zone.isSettled && !at.city.dstRule.observes && !at.zone.changes.empty() &&
           at.utc < at.zone.changes.back().utc;
}

// Only changes of whole hours can be said.
bool IsPartOfAnHour(const Reading& at) {
    return !at.city.dstRule.observes &&
           std::any_of(at.zone.changes.begin(), at.zone.changes.end(),
                       [](const ZoneChange& change) { return (change.to - change.from) % kHour != 0; });
}

// Hours only: a change within an hour is written as the hour before or behind it.
bool IsChangeWithinAnHour(const Reading& at) {
    const Plain rule(at.city, at.zone.year);
    return std::any_of(at.zone.changes.begin(), at.zone.changes.end(), [&](const ZoneChange& change) {
        const bool isWithin = (change.utc + change.from) % kHour != 0;
        const bool isStart = change.to > change.from;
        return isWithin && Within(at.utc, change.utc, isStart ? rule.StartUtc() : rule.EndUtc()) &&
               std::abs(at.utc - change.utc) < kHour;
    });
}

// A rule is of one year, and the period of the year that the device's clock shows is the only one that is looked at.
bool IsBesideTheYear(const Reading& at) {
    const int year = at.zone.rulesYear;
    const auto isBeside = [year](std::int64_t second) { return DateTimeOfSecondNumber(second).date.year != year; };
    return at.zone.year == year && at.city.dstRule.observes &&
           (isBeside(at.device) || isBeside(at.utc + at.truth - kHour));
}

// Day numbers move from year to year: by a week at most, for a rule that counts weekdays.
bool IsOfAnotherYear(const Reading& at) {
    if (at.zone.year == at.zone.rulesYear || !at.city.dstRule.observes) return false;
    const Plain rule(at.city, at.zone.year);
    return std::any_of(at.zone.changes.begin(), at.zone.changes.end(), [&](const ZoneChange& change) {
        const std::int64_t moment = change.to > change.from ? rule.StartUtc() : rule.EndUtc();
        return std::abs(moment - change.utc) <= 7 * kDay &&
               Within(at.utc, std::min(change.utc, moment) - kDay, std::max(change.utc, moment) + kDay);
    });
}

// A zone that keeps summer over New Year, or drops it: no other year's rule can tell.
bool HasOtherChanges(const Reading& at) {
    constexpr std::size_t kStartAndEnd = 2;
    return at.zone.year != at.zone.rulesYear && at.city.dstRule.observes && at.zone.changes.size() != kStartAndEnd;
}

bool IsOtherRelease(const Reading& at) {
    return at.zone.isOtherRelease;
}

}  // namespace

const std::array<Cause, kCauses> kClockCauses{{
    {"southern summer, from New Year to its end", IsSouthernNewYear},
    {"start day, before the start hour", IsEarlyOnStartDay},
    {"end day, behind the end hour", IsLateOnEndDay},
    {"change taken at the hour of the device's clock", IsByTheDeviceClock},
    {"hour that the device's clock shows twice", IsHourShownTwice},
    {"zone that settled within the year, before that", IsBeforeSettling},
    {"daylight saving of half an hour", IsPartOfAnHour},
    {"change within an hour", IsChangeWithinAnHour},
    {"New Year, the device or the city in another year than the rule", IsBesideTheYear},
    {"days of another year's rule", IsOfAnotherYear},
    {"other changes than in the rule's year", HasOtherChanges},
    {"rule of another release of the tz database", IsOtherRelease},
}};

}  // namespace rlx::truth
