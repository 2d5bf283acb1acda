#include "places/dst_rule.h"

#include <array>
#include <cstdint>

#include "base/number.h"

namespace rlx {

namespace {

/// Hour `hour` of day `day` of the year; 64 bits hold any pair of them.
DateTime MomentOfYear(int year, int day, int hour) {
    const std::int64_t days = DayNumber({year, 1, 1}) + day - std::int64_t{1};
    return DateTimeOfSecondNumber(days * 86400 + std::int64_t{hour} * 3600);
}

/// The same month, day and time in another year.
DateTime InYear(const DateTime& time, int year) {
    const Date date = DateOfDayNumber(DayNumber({year, time.date.month, time.date.day}));
    return {date, time.hour, time.minute, time.second, 0};
}

}  // namespace

DstRule ParseDstRule(std::u16string_view text) {
    const bool observes = text.substr(0, text.find(u':')) != u"0";
    std::array<int, 5> numbers{};
    for (int& number : numbers) {
        const std::size_t colon = text.find(u':');
        number = ParseInteger(text.substr(0, colon));
        if (colon == std::u16string_view::npos) break;
        text.remove_prefix(colon + 1);
    }
    return {observes, numbers[0], numbers[1], numbers[2], numbers[3], numbers[4]};
}

DstPeriod PeriodOfYear(const DstRule& rule, int year, DstPrecision precision) {
    const bool useHours = precision == DstPrecision::kHour;
    DstPeriod period;
    period.start = MomentOfYear(year, rule.startDay, useHours ? rule.startHour : 0);
    period.end = MomentOfYear(year, rule.endDay, useHours ? rule.endHour : 0);
    if (period.end.date.month < period.start.date.month) period.end = InYear(period.end, year + 1);
    return period;
}

bool IsDstActive(const DstRule& rule, const DateTime& now, int deviceYear, DstPrecision precision) {
    if (!rule.observes) return false;
    const DstPeriod period = PeriodOfYear(rule, deviceYear, precision);
    const std::int64_t second = SecondNumber(now);
    return SecondNumber(period.start) <= second && second <= SecondNumber(period.end);
}

}  // namespace rlx
