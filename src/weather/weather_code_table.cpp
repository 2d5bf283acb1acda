#include "weather/text_ids.h"
#include "weather/weather_code.h"

namespace rlx {

// Codes and their meaning: WMO table 4677 as the Open-Meteo forecast uses it. Only codes 56/57 and 66/67 share a
// picture: how much of the water freezes cannot be drawn.
const std::array<WeatherCondition, kWeatherConditionCount> kWeatherConditions{{
    {0, "clear-day", kTextWeatherClear},
    {1, "mainly-clear-day", kTextWeatherMainlyClear},
    {2, "partly-cloudy-day", kTextWeatherPartlyCloudy},
    {3, "overcast", kTextWeatherOvercast},
    {45, "fog", kTextWeatherFog},
    {48, "rime-fog", kTextWeatherRimeFog},
    {51, "light-drizzle", kTextWeatherLightDrizzle},
    {53, "drizzle", kTextWeatherDrizzle},
    {55, "heavy-drizzle", kTextWeatherHeavyDrizzle},
    {56, "freezing-drizzle", kTextWeatherLightFreezingDrizzle},
    {57, "freezing-drizzle", kTextWeatherFreezingDrizzle},
    {61, "light-rain", kTextWeatherLightRain},
    {63, "rain", kTextWeatherRain},
    {65, "heavy-rain", kTextWeatherHeavyRain},
    {66, "freezing-rain", kTextWeatherLightFreezingRain},
    {67, "freezing-rain", kTextWeatherFreezingRain},
    {71, "light-snow", kTextWeatherLightSnow},
    {73, "snow", kTextWeatherSnow},
    {75, "heavy-snow", kTextWeatherHeavySnow},
    {77, "snow-grains", kTextWeatherSnowGrains},
    {80, "light-showers-day", kTextWeatherLightShowers},
    {81, "showers-day", kTextWeatherShowers},
    {82, "heavy-showers", kTextWeatherHeavyShowers},
    {85, "light-snow-showers-day", kTextWeatherLightSnowShowers},
    {86, "snow-showers-day", kTextWeatherSnowShowers},
    {95, "thunderstorm", kTextWeatherThunderstorm},
    {96, "thunderstorm-hail", kTextWeatherThunderstormHail},
    {99, "thunderstorm-heavy-hail", kTextWeatherThunderstormHeavyHail},
}};

static_assert(kWeatherConditions.size() == 28);

}  // namespace rlx
