#pragma once

#include <cstdint>
#include <string>

#include "base/calendar.h"
#include "places/gmt_offset.h"
#include "shell/texts.h"

/// What a clock in another place shows, told from the device's own clock: the offset that the device runs on (the
/// reference) is taken away and the city's is added. Pure functions of any numbers, any thread. `now` is the device's
/// local time. Divisions truncate toward zero throughout.
namespace rlx {

/// The reference of a device whose time-zone setting has this standard bias in minutes (UTC = local time + bias). The
/// minutes keep the sign of the bias, against that of the hours: 5 h 30 min east (-330) gives 5 and -30. That is meant.
ClockOffset ReferenceOfBias(int bias);

/// A time of day as the arithmetic gives it. The hour wraps around midnight once only, so it leaves 0 to 23 where
/// offsets lie more than a day apart.
struct CityTime {
    std::int64_t hour = 0;
    int minute = 0;
    int second = 0;
};

CityTime CityTimeOf(GmtOffset gmt, const ClockOffset& reference, const DateTime& now);

/// The date that goes with `CityTimeOf`: the device's, the day before or the day after.
Date CityDateOf(GmtOffset gmt, const ClockOffset& reference, const DateTime& now);

/// "07:05:09".
std::u16string CityTimeText(const CityTime& time);

/// Day, month and short weekday: "01/03 Sun"; the long form has the year: "01/03/2026    Sun".
std::u16string CityDateText(const Date& date, bool longForm, const ITexts& texts);

/// The text of the city's time.
std::u16string CityLocalTime(GmtOffset gmt, const ClockOffset& reference, const DateTime& now);

struct CityDate {
    std::u16string text;
    Date date;
};

CityDate CityLocalDate(GmtOffset gmt, const ClockOffset& reference, const DateTime& now, bool longForm,
                       const ITexts& texts);

}  // namespace rlx
