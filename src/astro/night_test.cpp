#include "astro/night_test.h"

#include <algorithm>
#include <cmath>

#include "astro/angles.h"

namespace rlx {

SunTerms::SunTerms(double declination, double altitude)
    : sinAltitude(std::sin(altitude * kRadiansPerDegree)),
      sinDeclination(std::sin(declination)),
      cosDeclination(std::cos(declination)) {}

RowSun RowSunOf(int row, int height, const SunTerms& sun) {
    const int counted = row == 0 ? std::min(1, height - 1) : row;
    const double latitude = (90.0 - counted * 180.0 / height) * kRadiansPerDegree;
    const double cosH =
        (sun.sinAltitude - sun.sinDeclination * std::sin(latitude)) / (sun.cosDeclination * std::cos(latitude));
    if (cosH > 1.0) return {RowSun::Kind::kNight, 0.0};
    if (cosH < -1.0) return {RowSun::Kind::kDay, 0.0};
    return {RowSun::Kind::kRisesAndSets, std::acos(cosH) * kDegreesPerRadian / 360.0};
}

double TransitFraction(double a, double b, double c) {
    return NormalizeFraction((a + b - c) / 360.0);
}

bool IsNight(const RowSun& row, double transitFraction, double dayFraction) {
    if (row.kind != RowSun::Kind::kRisesAndSets) return row.kind == RowSun::Kind::kNight;
    const double rise = NormalizeFraction(transitFraction - row.halfDay);
    const double set = NormalizeFraction(transitFraction + row.halfDay);
    if (rise < set) return dayFraction < rise || dayFraction > set;
    if (rise > set) return set < dayFraction && dayFraction < rise;
    return false;
}

bool IsNightAt(int row, int height, double declination, double altitude, double a, double b, double c,
               double dayFraction) {
    return IsNight(RowSunOf(row, height, {declination, altitude}), TransitFraction(a, b, c), dayFraction);
}

}  // namespace rlx
