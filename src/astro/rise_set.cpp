#include "astro/rise_set.h"

#include <cmath>
#include <cstdint>

#include "astro/angles.h"
#include "base/number.h"

namespace rlx {
namespace {

constexpr float kNoon = 12.0F;                  // hours
constexpr double kDiameterDegrees = 0.53;       // of the Sun's disc
constexpr double kRefractionArcMinutes = 34.0;  // at the horizon
constexpr double kCivilTwilightDegrees = 6.0;   // below the horizon
constexpr double kObliquityDegrees = 23.4393;   // of the ecliptic at the epoch
constexpr double kObliquityDegreesPerDay = 3.563e-7;
constexpr double kHoursPerDegreeOfHalfArc = 0.13333333333333333;  // 2 / 15: the day has both halves
constexpr double kHoursPerDegree = 0.06666666666666667;           // 1 / 15
constexpr double kHoursPerMinute = 0.016666666666666666;          // 1 / 60
constexpr double kMinutesPerDay = 1440.0;
constexpr double kShortestDayHours = 0.0001;
constexpr double kHighestSine = 0.99999;

/// Tangent product whose arc sine widens or narrows the half arc of six hours.
double ArcSine(double latitudeDegrees, double declination, double dipRadians) {
    const double dip = latitudeDegrees < 0.0 ? -dipRadians : dipRadians;
    const double product = std::tan(declination + dip) * std::tan(latitudeDegrees * kRadiansPerDegree);
    return product > kHighestSine ? 1.0 : product;
}

double HorizonDip() {
    return kRadiansPerDegree * (0.5 * kDiameterDegrees + kRefractionArcMinutes / 60.0);
}

/// Sun's place in its orbit: rectangular coordinates in the plane of the ecliptic, in astronomical units.
struct OrbitPoint {
    double x = 0.0;
    double y = 0.0;
};

OrbitPoint SunInOrbit(double meanAnomalyDegrees, double meanAnomaly, double eccentricity, double perihelionDegrees) {
    const double eccentricAnomaly = meanAnomalyDegrees + kDegreesPerRadian * eccentricity * std::sin(meanAnomaly) *
                                                             (1.0 + eccentricity * std::cos(meanAnomaly));
    const double reduced = NormalizeRadians(eccentricAnomaly * kRadiansPerDegree);
    const double xv = std::cos(reduced) - eccentricity;
    const double yv = std::sqrt(1.0 - eccentricity * eccentricity) * std::sin(reduced);
    const double trueAnomaly = std::atan2(yv, xv);
    const double distance = std::sqrt(xv * xv + yv * yv);
    double longitude = trueAnomaly * kDegreesPerRadian + perihelionDegrees;
    if (longitude > 360.0) longitude -= 360.0;
    return {distance * std::cos(longitude * kRadiansPerDegree), distance * std::sin(longitude * kRadiansPerDegree)};
}

double DeclinationOf(const OrbitPoint& sun, double dayNumber) {
    const double obliquity =
        kObliquityDegrees * kRadiansPerDegree - kObliquityDegreesPerDay * kRadiansPerDegree * dayNumber;
    const double equatorialY = sun.y * std::cos(obliquity);
    const double equatorialZ = sun.y * std::sin(obliquity);
    return std::atan2(equatorialZ, std::sqrt(sun.x * sun.x + equatorialY * equatorialY));
}

/// Apparent minus mean solar time in minutes, or that plus a day.
double EquationOfTime(const SunLongitude& sun, double dayNumber) {
    const double obliquity =
        kObliquityDegrees * kRadiansPerDegree - kRadiansPerDegree * dayNumber * kObliquityDegreesPerDay;
    const double rightAscension = std::atan2(std::sin(sun.ecliptic) * std::cos(obliquity), std::cos(sun.ecliptic));
    double difference = sun.meanLongitude - rightAscension;
    if (sun.meanLongitude < kPi) difference += kFullTurn;
    return kMinutesPerDay * (1.0 - difference / kFullTurn);
}

double WithinDay(double hours) {
    return hours > 24.0 ? hours - 24.0 : hours;
}

// With pi a hair too large the tangent of 90 degrees comes out negative, so at a pole itself the product has the wrong
// sign. The hours stay what the arithmetic gives, but the words must be true: the Sun is up when it stands on the
// pole's side of the equator.
DayKind KindOf(double latitudeDegrees, double declination, double hourAngle) {
    if (std::abs(latitudeDegrees) >= 90.0) {
        const double height = latitudeDegrees > 0.0 ? declination : -declination;
        return height + HorizonDip() > 0.0 ? DayKind::kPolarDay : DayKind::kPolarNight;
    }
    if (!std::isfinite(hourAngle)) return DayKind::kPolarNight;
    return ArcSine(latitudeDegrees, declination, HorizonDip()) >= 1.0 ? DayKind::kPolarDay : DayKind::kNormal;
}

}  // namespace

RiseSetPlace RiseSetPlaceOf(std::u16string_view latitude, std::u16string_view longitude, int effectiveOffset) {
    return {ParseInteger(latitude), ParseInteger(longitude), ZoneHours(effectiveOffset)};
}

double ZoneHours(int effectiveOffset) {
    const bool wholeHours = effectiveOffset >= -100 && effectiveOffset <= 100;
    return wholeHours ? effectiveOffset : effectiveOffset * 0.01;
}

double RiseSetDayNumber(int year, int month, int day, float hour) {
    const std::int64_t y = year;
    const std::int64_t m = month;
    const std::int64_t n = 367 * y - (7 * (y + (m + 9) / 12)) / 4 + (275 * m) / 9 + day;
    return static_cast<double>(n) - 730530.0 + static_cast<double>(hour) / 24.0;
}

SunLongitude SunEclipticLongitude(double dayNumber) {
    const double perihelion = 282.9404 + 4.70935e-5 * dayNumber;    // degrees
    const double meanAnomaly = 356.047 + 0.9856002585 * dayNumber;  // degrees
    const double eccentricity = 0.016709 - 1.151e-9 * dayNumber;
    SunLongitude sun;
    sun.meanLongitude = NormalizeRadians((meanAnomaly + perihelion) * kRadiansPerDegree);
    sun.meanAnomaly = NormalizeRadians(meanAnomaly * kRadiansPerDegree);
    sun.declination = DeclinationOf(SunInOrbit(meanAnomaly, sun.meanAnomaly, eccentricity, perihelion), dayNumber);
    const double centre = 1.915 * std::sin(sun.meanAnomaly) + 0.02 * std::sin(2.0 * sun.meanAnomaly);  // degrees
    sun.ecliptic = NormalizeRadians(sun.meanLongitude + kRadiansPerDegree * centre);
    return sun;
}

double RiseSetHourAngle(double latitudeDegrees, double declination) {
    return std::asin(ArcSine(latitudeDegrees, declination, HorizonDip())) + kPi / 2.0;
}

double TwilightHourAngle(double latitudeDegrees, double declination) {
    return std::asin(ArcSine(latitudeDegrees, declination, kRadiansPerDegree * kCivilTwilightDegrees)) + kPi / 2.0;
}

RiseSet SunRiseAndSet(const Date& date, const RiseSetPlace& place) {
    const double dayNumber = RiseSetDayNumber(date.year, date.month, date.day, kNoon);
    const SunLongitude sun = SunEclipticLongitude(dayNumber);
    const double equationOfTime = EquationOfTime(sun, dayNumber);
    const double hourAngle = RiseSetHourAngle(place.latitude, sun.declination);
    RiseSet result;
    result.meanLongitude = sun.meanLongitude;
    result.declination = sun.declination;
    result.kind = KindOf(place.latitude, sun.declination, hourAngle);
    result.dayLengthHours = kDegreesPerRadian * hourAngle * kHoursPerDegreeOfHalfArc;
    if (result.dayLengthHours < kShortestDayHours) result.dayLengthHours = 0.0;
    const double half = 12.0 / kPi * hourAngle;
    const double meridian = place.longitude * kHoursPerDegree;
    const double correction = equationOfTime * kHoursPerMinute;
    result.sunriseHours = WithinDay(12.0 - half + place.zoneHours - meridian + correction);
    result.sunsetHours = WithinDay(half + place.zoneHours + 12.0 - meridian + correction);
    return result;
}

std::u16string FormatHours(double hours) {
    constexpr double kMostHours = 1e6;
    if (!(std::abs(hours) <= kMostHours)) return {};
    const int whole = static_cast<int>(hours);
    const int minutes = static_cast<int>((hours - whole) * 60.0);
    return FormatTwoDigits(whole) + u":" + FormatTwoDigits(minutes);
}

}  // namespace rlx
