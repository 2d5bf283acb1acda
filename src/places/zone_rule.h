#pragma once

#include <array>
#include <optional>
#include <string>
#include <string_view>

#include "base/calendar.h"
#include "platform/time_zones.h"

namespace rlx {

/// The years for which rules can be made.
inline constexpr int kFirstRulesYear = 1970;
inline constexpr int kLastRulesYear = 2199;

/// The fields of a city line that say what its clock shows in one year.
struct RuleFields {
    std::u16string gmt;                 ///< a `GmtOffset`
    std::array<std::u16string, 5> dst;  ///< hours, start day, start hour, end day, end hour

    friend bool operator==(const RuleFields&, const RuleFields&) = default;
};

/// The one offset and daylight-saving rule that agree longest with the clocks of a zone in the year of `day`. A zone
/// that changes no clock in the twelve months from `day` on has settled: it gets its offset of that day and no daylight
/// saving, even where it changed earlier in the year.
///
/// The start is in standard wall time, the end in daylight wall time, both to the hour; "end on day 1 at 0" with hours
/// above 0 says that daylight saving lasts to the end of the year. Only changes of whole hours can be said.
///
/// Nothing when the system knows no such zone, or when its offset cannot be written: minutes need an hour before them.
std::optional<RuleFields> RuleOfZone(ITimeZones& zones, std::string_view zone, const Date& day);

}  // namespace rlx
