#include "astro/angles.h"

#include <cmath>

namespace rlx {
namespace {

// Taking a turn off again and again is exact in floating point, and so is fmod: the results are the same, without a
// loop that a huge angle would keep busy for ever.
double Normalize(double value, double turn) {
    if (value > turn) {
        value = std::fmod(value, turn);
        if (value == 0.0) value = turn;
    } else if (value < 0.0) {
        value = std::fmod(value, turn);
        value = value < 0.0 ? value + turn : 0.0;
    }
    return value;
}

}  // namespace

double NormalizeRadians(double radians) {
    const double rest = radians - kFullTurn * std::trunc(radians / kFullTurn);
    return rest < 0.0 ? rest + kFullTurn : rest;
}

double NormalizeDegrees(double degrees) {
    return Normalize(degrees, 360.0);
}

double NormalizeFraction(double fraction) {
    return Normalize(fraction, 1.0);
}

}  // namespace rlx
