#pragma once

#include <cstdint>

namespace rlx {

/// The numbers are those that the setting "fara" keeps.
enum class TemperatureUnit : std::uint32_t { kCelsius = 0, kFahrenheit = 1 };

/// The same temperature on the scale of `unit`.
double OnScale(double celsius, TemperatureUnit unit);

/// Whole degrees on the scale of `unit`, halves away from zero; never minus zero.
int WholeDegrees(double celsius, TemperatureUnit unit);

}  // namespace rlx
