#pragma once

#include <string_view>

#include "base/calendar.h"

/// Daylight-saving rules of cities and the question whether one is in force. Pure functions, any thread.
namespace rlx {

/// When a city's clocks go forward, in days of one year: 1 is 1 January, so a rule fits one year and is written anew
/// for the next.
struct DstRule {
    bool observes = false;  ///< false when the hours read exactly "0", whatever the other numbers say
    int hours = 0;          ///< how far the clocks go forward
    int startDay = 0;
    int startHour = 0;
    int endDay = 0;
    int endHour = 0;

    friend bool operator==(const DstRule&, const DstRule&) = default;
};

/// Reads "hours:startDay:startHour:endDay:endHour". A number that is missing or does not begin as one is 0; what
/// follows a number, and what follows the fifth, is ignored.
DstRule ParseDstRule(std::u16string_view text);

/// How exactly a moment is held against a rule.
enum class DstPrecision {
    kHour,  ///< from the start hour of the start day to the end hour of the end day
    kDay,   ///< from midnight to midnight, hours ignored; asked about a midnight, so all of the end day belongs to it
};

struct DstPeriod {
    DateTime start;
    DateTime end;  ///< belongs to the period, as the start does
};

/// The period that begins in `year`. When the month of the end comes before the month of the start (a southern
/// summer), the end lies in the following year, on the same month and day; 29 February becomes 1 March where the
/// following year has none. Hours beyond a day and days beyond a year run on into the following ones.
DstPeriod PeriodOfYear(const DstRule& rule, int year, DstPrecision precision);

/// True when `now` lies in the period that begins in `deviceYear`, the year that the device's clock shows. `now` is
/// compared to the second. Since no earlier period is looked at, a southern summer counts from its start to 31 December
/// only: on from 1 January the answer is false. That is meant.
bool IsDstActive(const DstRule& rule, const DateTime& now, int deviceYear, DstPrecision precision);

}  // namespace rlx
