#include "weather/weather_text.h"

#include <filesystem>
#include <set>

#include "base/text.h"
#include "shell/resources.h"
#include "support/paths.h"
#include "weather/weather_code.h"
#include "weather/wind.h"

namespace rlx {
namespace {

TEST(WeatherText, RoundsDegreesWithoutMinusZero) {
    const CResources texts;
    const CWeatherTexts celsius(texts, TemperatureUnit::kCelsius);
    const CWeatherTexts fahrenheit(texts, TemperatureUnit::kFahrenheit);
    const struct {
        double degrees;
        const char* celsius;
        const char* fahrenheit;
    } rows[] = {{0, "0", "32"},      {-0.4, "0", "31"},   {-0.5, "-1", "31"},  {0.5, "1", "33"},
                {-17.8, "-18", "0"}, {-17.9, "-18", "0"}, {-40, "-40", "-40"}, {-18.1, "-18", "-1"}};
    for (const auto& row : rows) {
        EXPECT_EQ(ToUtf8(celsius.Degrees(row.degrees)), row.celsius + std::string("°"));
        EXPECT_EQ(ToUtf8(celsius.Temperature(row.degrees)), row.celsius + std::string(" °C"));
        EXPECT_EQ(ToUtf8(fahrenheit.Temperature(row.degrees)), row.fahrenheit + std::string(" °F"));
    }
}

TEST(WeatherText, MissingValuesAreDashes) {
    const CResources texts;
    const CWeatherTexts shown(texts, TemperatureUnit::kCelsius);
    const ForecastDay day;
    for (const auto& text : {shown.Degrees({}), shown.Temperature({}), shown.Precipitation({}), shown.PerCent({}),
                             shown.Wind(day), shown.Time({})})
        EXPECT_EQ(text, u"–");
    EXPECT_EQ(shown.Condition(day), u"not available");
    EXPECT_EQ(shown.Precipitation(0.0), u"0.0 mm") << "a dry day is known";
}

TEST(WeatherText, ShowsValuesWithTheirUnits) {
    const CResources texts;
    const CWeatherTexts shown(texts, TemperatureUnit::kCelsius);
    EXPECT_EQ(shown.Precipitation(4.25), u"4.2 mm");
    EXPECT_EQ(shown.Precipitation(9.96), u"10 mm");
    ForecastDay day;
    day.windSpeed = 21.6;
    EXPECT_EQ(shown.Wind(day), u"22 km/h");
    const Forecast forecast{.source = u"100% #1 %2", .issued = {}, .placeFeedName = {}, .days = {}};
    EXPECT_EQ(shown.Source(forecast), u"Source: 100% #1 %2");
}

TEST(WeatherText, CompassPointsMeetHalfWay) {
    const CResources texts;
    const struct {
        int degrees;
        const char16_t* point;
    } rows[] = {{0, u"N"},     {11, u"N"},    {12, u"NNE"}, {90, u"E"},  {225, u"SW"}, {236, u"SW"},
                {237, u"WSW"}, {348, u"NNW"}, {349, u"N"},  {359, u"N"}, {360, u"N"},  {-90, u"W"}};
    for (const auto& row : rows)
        EXPECT_EQ(texts.Text(CompassPointText(row.degrees)), row.point) << row.degrees;
}

TEST(WeatherCode, EveryCodeHasWordsAndAPictureInEverySet) {
    const CResources texts;
    std::set<std::string> icons = {std::string(kNoWeatherIcon)};
    std::set<std::u16string> words;
    int last = -1;
    for (const auto& condition : kWeatherConditions) {
        EXPECT_GT(condition.code, last);
        last = condition.code;
        EXPECT_EQ(&ConditionOf(condition.code), &condition);
        words.insert(texts.Text(condition.textId));
        icons.emplace(condition.icon);
    }
    EXPECT_EQ(words.size(), 28U);
    EXPECT_EQ(ConditionOf(61).icon, "light-rain");
    for (const std::optional<int> code : {std::optional<int>(), {4}, {-1}, {100}, {98}})
        EXPECT_EQ(ConditionOf(code).icon, kNoWeatherIcon);
    for (const char* set : {"wiconset", "wiconsets/Line"}) {
        std::set<std::string> files;
        for (const auto& entry : std::filesystem::directory_iterator(std::filesystem::path(test::kDataDir) / set))
            files.insert(entry.path().stem().string());
        EXPECT_EQ(files, icons) << set;
    }
}

}  // namespace
}  // namespace rlx
