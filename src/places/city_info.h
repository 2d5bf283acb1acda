#pragma once

#include <string>

#include "places/city_times.h"
#include "platform/message_boxes.h"

namespace rlx {

/// What the sun details of a city are opened with.
struct CitySunDetails {
    std::u16string name;
    std::u16string country;
    std::u16string longitude;
    std::u16string latitude;
    std::u16string dstStatus;     ///< observing now, not observing now, or never
    std::u16string dstStartEnd;   ///< "29/3/2026 - 25/10/2026", or "-" where the city never observes
    std::u16string gmtText;       ///< "1h + 1h (DST)"
    std::u16string effectiveGmt;  ///< a `GmtOffset` in decimal, daylight saving in it while observed

    friend bool operator==(const CitySunDetails&, const CitySunDetails&) = default;
};

/// What is known of a city, its daylight saving decided to the hour by the date and the hour (without the minutes) that
/// its clock shows. So it may differ from the clocks, which decide by the day, on the days of change.
/// Of a city that does not exist the texts are empty and the numbers those of an empty rule.
CitySunDetails SunDetailsOf(CCityDatabase& cities, CCityTimes& times, const ITexts& texts, CityIndex index,
                            const DateTime& now);

/// The text of the "City information" box, one line for each fact.
std::u16string CityInfoText(const CitySunDetails& details, const ITexts& texts);

/// The box with that text; Yes leads to the city's sun.
MessageBox CityInformationBox(const CitySunDetails& details, const ITexts& texts);

}  // namespace rlx
