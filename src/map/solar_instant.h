#pragma once

#include "base/calendar.h"

/// The Sun over the map at one instant. Pure functions, any thread.
namespace rlx {

/// The Sun as the shadow of the map needs it.
struct SolarInstant {
    int month = 1;             ///< of the Universal Time date
    double dayFraction = 0.0;  ///< of the Universal Time day, 0 to 1
    double julianDay = 0.0;
    double rightAscension = 0.0;  ///< degrees, 0 to 360
    double declination = 0.0;     ///< radians, north positive
    double siderealTime = 0.0;    ///< at Greenwich, degrees, 0 to 360
};

/// A point of the Earth, degrees, north and east positive.
struct EarthPoint {
    double latitude = 0.0;
    double longitude = 0.0;
};

/// Universal Time of a device clock that runs `referenceHours` and `referenceMinutes` ahead of it: the hours are taken
/// off the hour and the minutes off the minute, with carry into hour and day. The millisecond is dropped.
DateTime UniversalTime(const DateTime& deviceTime, int referenceHours, int referenceMinutes);

SolarInstant SolarInstantAt(const DateTime& universalTime);

/// Where the Sun stands in the zenith, by the same model as the shadow.
EarthPoint SubsolarPoint(const SolarInstant& instant);

}  // namespace rlx
