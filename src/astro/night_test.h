#pragma once

/// Whether the Sun is below the horizon of one pixel of a world map. Pure functions, any thread.
namespace rlx {

/// Height of the Sun's centre at rising and setting: refraction and half its disc, in degrees.
inline constexpr double kStandardAltitude = -0.8333333333333334;

/// Everything about a map row that does not depend on the column.
struct RowSun {
    /// cos H below -1, between, above 1.
    enum class Kind { kDay, kRisesAndSets, kNight };
    Kind kind = Kind::kDay;
    double halfDay = 0.0;  ///< hour angle of sunrise as a fraction of a day, 0 to 0.5; only for `kRisesAndSets`
};

/// What all rows of a map share; computed once for an instant. `declination` in radians, `altitude` in degrees.
struct SunTerms {
    SunTerms(double declination, double altitude);

    double sinAltitude;
    double sinDeclination;
    double cosDeclination;
};

/// Row `row` of an equirectangular map of `height` rows, row 0 being the pole. At the pole itself the cosine of the
/// latitude comes out just below zero, with pi a hair too large, and would turn the answer around: row 0 takes that of
/// row 1 (where there is one).
RowSun RowSunOf(int row, int height, const SunTerms& sun);

/// The transit of the Sun over a meridian as a fraction of the day, 0 to 1: (a + b - c) degrees brought into one turn.
double TransitFraction(double a, double b, double c);

/// True when a point is in night at the fraction `dayFraction` of the day.
bool IsNight(const RowSun& row, double transitFraction, double dayFraction);

/// The test in one call, for single points. a, b, c are angles in degrees: right ascension, longitude positive towards
/// the west, sidereal time.
bool IsNightAt(int row, int height, double declination, double altitude, double a, double b, double c,
               double dayFraction);

}  // namespace rlx
