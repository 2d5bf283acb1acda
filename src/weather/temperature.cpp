#include "weather/temperature.h"

#include <cmath>

namespace rlx {

double OnScale(double celsius, TemperatureUnit unit) {
    return unit == TemperatureUnit::kFahrenheit ? celsius * 9 / 5 + 32 : celsius;
}

int WholeDegrees(double celsius, TemperatureUnit unit) {
    return static_cast<int>(std::lround(OnScale(celsius, unit)));
}

}  // namespace rlx
