#pragma once

#include <string>
#include <string_view>

#include "base/calendar.h"

/// The rise/set model: sunrise, sunset and length of the day of one place on one date, from mean orbital elements of
/// the Sun (a Kepler orbit with one step of the eccentric anomaly). Good to a few minutes between the polar circles. It
/// is separate from the apparent-position model on purpose. Pure functions, any thread.
namespace rlx {

/// How the Sun behaves on a date.
enum class DayKind {
    kNormal,      ///< it rises and sets
    kPolarNight,  ///< it does not rise; the hours are not a number
    kPolarDay,    ///< it does not set; the hours are what the arithmetic of a day of 24 hours gives
};

/// All hours are on the clock of the place's zone. Sunrise and sunset may be below 0 (before local midnight) and are at
/// most 24, except far outside the zone's own meridians.
struct RiseSet {
    double sunriseHours = 0.0;
    double sunsetHours = 0.0;
    double dayLengthHours = 0.0;  ///< 0 to 24
    double meanLongitude = 0.0;   ///< of the Sun, radians, 0 to 2 pi
    double declination = 0.0;     ///< of the Sun, radians, north positive
    DayKind kind = DayKind::kNormal;
};

/// Where and in which zone the Sun is looked for.
struct RiseSetPlace {
    int latitude = 0;        ///< whole degrees, north positive
    int longitude = 0;       ///< whole degrees, east positive
    double zoneHours = 0.0;  ///< clock of the place minus Universal Time, hours

    friend bool operator==(const RiseSetPlace&, const RiseSetPlace&) = default;
};

/// Sun over the horizon of a point of the sky.
struct SunLongitude {
    double ecliptic = 0.0;       ///< radians, 0 to 2 pi
    double meanLongitude = 0.0;  ///< radians, 0 to 2 pi
    double meanAnomaly = 0.0;    ///< radians, 0 to 2 pi
    double declination = 0.0;    ///< radians
};

/// A place as a city record holds it: the texts are read as whole numbers, so that a fraction is ignored.
/// `effectiveOffset` is the GMT offset with daylight saving applied.
RiseSetPlace RiseSetPlaceOf(std::u16string_view latitude, std::u16string_view longitude, int effectiveOffset);

/// Hours of a GMT offset: as it is from -100 to 100, else the value times 0.01 (550 is 5.5 hours, 101 is 1.01).
double ZoneHours(int effectiveOffset);

/// Days since 0.0 = 31 December 1999, 00:00, on the Gregorian calendar; `hour` is the hour of the day.
double RiseSetDayNumber(int year, int month, int day, float hour);

/// The Sun at a day number of `RiseSetDayNumber`.
SunLongitude SunEclipticLongitude(double dayNumber);

/// Half of the day arc in radians: the hour angle at which the Sun's upper limb stands on the horizon under mean
/// refraction. Not a number in polar night; pi in polar day.
double RiseSetHourAngle(double latitudeDegrees, double declination);

/// The same for the end of civil twilight, the Sun's centre 6 degrees below the horizon.
double TwilightHourAngle(double latitudeDegrees, double declination);

/// The whole computation for noon of `date`, the local date of the place.
RiseSet SunRiseAndSet(const Date& date, const RiseSetPlace& place);

/// Hours as hours and minutes in 24-hour form, each of two digits at least and cut, never rounded: 6.999 gives "06:59".
/// Hours and minutes carry the sign each, and a negative one gets its zero too: -1.5 gives "0-1:0-30". Empty for a
/// value that is not finite (polar night) or beyond a million hours; callers then say in words what is the matter.
std::u16string FormatHours(double hours);

}  // namespace rlx
