#include "map/solar_instant.h"

#include <cmath>

#include "astro/angles.h"
#include "astro/sun_position.h"

namespace rlx {
namespace {

constexpr double kHoursPerSecond = 1.0 / 3600.0;
constexpr double kHoursPerMinute = 1.0 / 60.0;
constexpr double kDaysPerHour = 1.0 / 24.0;

/// Takes whole spans off `value` until it is within 0 to `span` - 1; returns how many, negative when they were added.
int Carry(int& value, int span) {
    int carried = value / span;
    if (value % span < 0) --carried;
    value -= carried * span;
    return carried;
}

}  // namespace

DateTime UniversalTime(const DateTime& deviceTime, int referenceHours, int referenceMinutes) {
    DateTime result = deviceTime;
    result.millisecond = 0;
    result.minute -= referenceMinutes;
    result.hour -= referenceHours - Carry(result.minute, 60);
    result.date = AddDays(deviceTime.date, Carry(result.hour, 24));
    return result;
}

SolarInstant SolarInstantAt(const DateTime& universalTime) {
    SolarInstant instant;
    instant.month = universalTime.date.month;
    instant.dayFraction =
        (universalTime.second * kHoursPerSecond + universalTime.minute * kHoursPerMinute + universalTime.hour) *
        kDaysPerHour;
    instant.julianDay =
        JulianDay(universalTime.date.year, universalTime.date.month, universalTime.date.day + instant.dayFraction);
    const double centuries = CenturiesSinceJ2000(instant.julianDay);
    const SunApparentPosition sun = SunApparentPositionAt(centuries);
    instant.rightAscension = sun.rightAscension;
    instant.declination = sun.declination;
    instant.siderealTime = GreenwichSiderealTime(centuries);
    return instant;
}

EarthPoint SubsolarPoint(const SolarInstant& instant) {
    const double west = instant.dayFraction * 360.0 + instant.siderealTime - instant.rightAscension;
    return {instant.declination * kDegreesPerRadian, -std::remainder(west, 360.0)};
}

}  // namespace rlx
