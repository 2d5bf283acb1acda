#pragma once

/// The apparent-position model: right ascension and declination of the Sun and sidereal time at Greenwich for an
/// instant, from the low-accuracy series for the Sun (mean longitude, equation of centre, nutation and aberration by
/// one term). Good to about 0.01 degrees within a few centuries of 2000. Pure functions, any thread.
namespace rlx {

struct SunApparentPosition {
    double rightAscension = 0.0;  ///< degrees, 0 to 360
    double declination = 0.0;     ///< radians, north positive
};

/// Julian day of a calendar date; `day` may have a fraction (0.5 is noon). Dates before 15 October 1582 are on the
/// Julian calendar. `month` from 1 to 12.
double JulianDay(int year, int month, double day);

/// Julian centuries of 36525 days since 1 January 2000, 12:00.
double CenturiesSinceJ2000(double julianDay);

SunApparentPosition SunApparentPositionAt(double centuries);

/// Mean sidereal time at Greenwich in degrees, 0 to 360, of the midnight series taken at `centuries`.
double GreenwichSiderealTime(double centuries);

}  // namespace rlx
