#include "weather/weather_code.h"

#include <algorithm>

#include "shell/text_ids.h"

namespace rlx {

const WeatherCondition& ConditionOf(std::optional<int> code) {
    static constexpr WeatherCondition kUnknown{-1, kNoWeatherIcon, kTextNotAvailable};
    if (!code) return kUnknown;
    const auto found = std::ranges::lower_bound(kWeatherConditions, *code, {}, &WeatherCondition::code);
    return found != kWeatherConditions.end() && found->code == *code ? *found : kUnknown;
}

}  // namespace rlx
