#pragma once

#include <cstdint>
#include <string>

#include "places/city_times.h"
#include "shell/texts.h"

/// How a city's clock lies to the home clock, both read at one instant.
namespace rlx {

/// Minutes that the city's clock is ahead of the home clock, date included.
std::int64_t MinutesAhead(const ClockReading& home, const ClockReading& city);

/// "+8:30", "-6:00"; empty where both show the same.
std::u16string ShortDistance(std::int64_t minutesAhead);

/// "8:30 ahead of home", "6:00 behind home", "same time as home".
std::u16string DistanceText(std::int64_t minutesAhead, const ITexts& texts);

/// "yesterday" or "tomorrow" as seen from home, empty on the same day, else the city's date.
std::u16string DayWord(const ClockReading& home, const ClockReading& city, const ITexts& texts);

/// Day word and short distance, what there is of them: "tomorrow, +8:30".
std::u16string HomeNote(const ClockReading& home, const ClockReading& city, const ITexts& texts);

}  // namespace rlx
