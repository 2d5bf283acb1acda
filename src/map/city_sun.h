#pragma once

#include <string>

#include "astro/rise_set.h"
#include "places/city_times.h"
#include "shell/clock_text.h"

/// The Sun of cities by the rise/set model, which reads whole degrees of their position. Used from one thread.
namespace rlx {

/// One day of a city.
struct CitySun {
    Date date;  ///< the city's own
    GmtOffset effectiveGmt = 0;
    RiseSet sun;
};

/// The day that the city has now, its daylight saving as a world clock decides it.
CitySun CitySunToday(const CityRecord& city, CCityTimes& times, const DateTime& now);

/// Any day of the city: daylight saving is decided for that day, with the rule taken for the day's year.
CitySun CitySunOn(const CityRecord& city, const Date& date);

/// What people read of a day.
struct SunTexts {
    std::u16string sunrise;
    std::u16string sunset;
    std::u16string dayLength;
    std::u16string note;  ///< "The sun does not rise", "The sun does not set", or empty
};

/// Hours and minutes in the clock form asked for. A sunrise before the city's midnight reads as the time on the clock
/// of the evening before. In polar night sunrise and sunset are "-" and the day length is "00:00".
SunTexts SunTextsOf(const RiseSet& sun, ClockForm form, const ITexts& texts);

/// The note of `SunTexts` by itself.
std::u16string SunNote(DayKind kind, const ITexts& texts);

}  // namespace rlx
