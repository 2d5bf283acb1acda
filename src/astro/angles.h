#pragma once

/// Angle arithmetic shared by both solar models. Pure functions, any thread.
namespace rlx {

/// The half turn as this system takes it; every derived constant comes from it, so that results agree to the last digit
/// wherever they are computed.
inline constexpr double kPi = 3.141592654;
inline constexpr double kFullTurn = 2.0 * kPi;                           ///< radians
inline constexpr double kRadiansPerDegree = kPi * 0.005555555555555556;  ///< multiply degrees by it
inline constexpr double kDegreesPerRadian = 180.0 / kPi;                 ///< multiply radians by it

/// An angle in radians brought into [0, 2 pi).
double NormalizeRadians(double radians);

/// An angle in degrees brought into [0, 360]: 360 is taken off while the value is above 360, and added while it is
/// below 0, so exactly 360 stays 360. Not a number for an angle that is not finite.
double NormalizeDegrees(double degrees);

/// A fraction of a turn or a day brought into [0, 1] in the same way; exactly 1 stays 1.
double NormalizeFraction(double fraction);

}  // namespace rlx
