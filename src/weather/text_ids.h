#pragma once

#include "shell/text_id.h"

/// Weather.
namespace rlx {

inline constexpr TextId kTextHigh = 40401;
inline constexpr TextId kTextLow = 40402;
inline constexpr TextId kTextPrecipitation = 40403;
inline constexpr TextId kTextWind = 40404;
inline constexpr TextId kTextHumidity = 40405;
inline constexpr TextId kTextNoForecast = 40406;
inline constexpr TextId kTextForecastOf = 40407;
inline constexpr TextId kTextWeatherTip = 40410;
inline constexpr TextId kTextWeatherPlace = 40411;
inline constexpr TextId kTextDayByDay = 40412;
inline constexpr TextId kTextOverview = 40413;
inline constexpr TextId kTextProbability = 40414;
inline constexpr TextId kTextUpdatedAt = 40415;
inline constexpr TextId kTextWeek = 40416;
inline constexpr TextId kTextWeatherTipDays = 40417;
inline constexpr TextId kTextWeatherListMissing = 40418;
inline constexpr TextId kTextWeatherNotSaved = 40419;
inline constexpr TextId kTextWeatherClear = 40420;
inline constexpr TextId kTextWeatherMainlyClear = 40421;
inline constexpr TextId kTextWeatherPartlyCloudy = 40422;
inline constexpr TextId kTextWeatherOvercast = 40423;
inline constexpr TextId kTextWeatherFog = 40424;
inline constexpr TextId kTextWeatherRimeFog = 40425;
inline constexpr TextId kTextWeatherLightDrizzle = 40426;
inline constexpr TextId kTextWeatherDrizzle = 40427;
inline constexpr TextId kTextWeatherHeavyDrizzle = 40428;
inline constexpr TextId kTextWeatherLightFreezingDrizzle = 40429;
inline constexpr TextId kTextWeatherFreezingDrizzle = 40430;
inline constexpr TextId kTextWeatherLightRain = 40431;
inline constexpr TextId kTextWeatherRain = 40432;
inline constexpr TextId kTextWeatherHeavyRain = 40433;
inline constexpr TextId kTextWeatherLightFreezingRain = 40434;
inline constexpr TextId kTextWeatherFreezingRain = 40435;
inline constexpr TextId kTextWeatherLightSnow = 40436;
inline constexpr TextId kTextWeatherSnow = 40437;
inline constexpr TextId kTextWeatherHeavySnow = 40438;
inline constexpr TextId kTextWeatherSnowGrains = 40439;
inline constexpr TextId kTextWeatherLightShowers = 40440;
inline constexpr TextId kTextWeatherShowers = 40441;
inline constexpr TextId kTextWeatherHeavyShowers = 40442;
inline constexpr TextId kTextWeatherLightSnowShowers = 40443;
inline constexpr TextId kTextWeatherSnowShowers = 40444;
inline constexpr TextId kTextWeatherThunderstorm = 40445;
inline constexpr TextId kTextWeatherThunderstormHail = 40446;
inline constexpr TextId kTextWeatherThunderstormHeavyHail = 40447;
inline constexpr TextId kTextWindNorth = 40450;
inline constexpr TextId kTextWindNorthNorthEast = 40451;
inline constexpr TextId kTextWindNorthEast = 40452;
inline constexpr TextId kTextWindEastNorthEast = 40453;
inline constexpr TextId kTextWindEast = 40454;
inline constexpr TextId kTextWindEastSouthEast = 40455;
inline constexpr TextId kTextWindSouthEast = 40456;
inline constexpr TextId kTextWindSouthSouthEast = 40457;
inline constexpr TextId kTextWindSouth = 40458;
inline constexpr TextId kTextWindSouthSouthWest = 40459;
inline constexpr TextId kTextWindSouthWest = 40460;
inline constexpr TextId kTextWindWestSouthWest = 40461;
inline constexpr TextId kTextWindWest = 40462;
inline constexpr TextId kTextWindWestNorthWest = 40463;
inline constexpr TextId kTextWindNorthWest = 40464;
inline constexpr TextId kTextWindNorthNorthWest = 40465;
inline constexpr TextId kTextMissingValue = 40466;
inline constexpr TextId kTextDegreesPlain = 40467;
inline constexpr TextId kTextDegreesCelsius = 40468;
inline constexpr TextId kTextDegreesFahrenheit = 40469;
inline constexpr TextId kTextMillimetres = 40470;
inline constexpr TextId kTextPerCent = 40471;
inline constexpr TextId kTextKilometresPerHour = 40472;
inline constexpr TextId kTextWindFrom = 40473;
inline constexpr TextId kTextInstantUtc = 40474;
inline constexpr TextId kTextForecastBroken = 40475;
inline constexpr TextId kTextWeatherToday = 40476;
inline constexpr TextId kTextUpdatingPlace = 40478;
inline constexpr TextId kTextCelsius = 40479;
inline constexpr TextId kTextFahrenheit = 40480;
inline constexpr TextId kTextWeatherChangeUnit = 40481;
inline constexpr TextId kTextIconSet = 40482;
inline constexpr TextId kTextPreviousDay = 40484;
inline constexpr TextId kTextNextDay = 40485;
inline constexpr TextId kTextChooseWeatherPlace = 40486;
inline constexpr TextId kTextDaysGone = 40487;
inline constexpr TextId kTextWeatherTomorrow = 40488;
inline constexpr TextId kTextSample = 40489;
inline constexpr TextId kTextIconsOfSkin = 40490;
inline constexpr TextId kTextIconsStandard = 40491;

}  // namespace rlx
