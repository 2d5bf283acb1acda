#include "weather/week_picture.h"

namespace rlx {
namespace {

ForecastDay Day(std::optional<double> high, std::optional<double> low, std::optional<double> precipitation) {
    ForecastDay day;
    day.high = high;
    day.low = low;
    day.precipitation = precipitation;
    return day;
}

TEST(WeekPicture, ScalesCurvesAndBars) {
    const std::vector days = {Day(9.0, -2.5, 0.0), Day({}, 5.0, 12.0), Day(15.0, {}, {})};
    const auto celsius = PictureOfWeek(days, TemperatureUnit::kCelsius);
    EXPECT_EQ(celsius.bottomDegrees, -5);
    EXPECT_EQ(celsius.topDegrees, 15);
    EXPECT_EQ(celsius.topPrecipitation, 12);
    EXPECT_DOUBLE_EQ(celsius.columns[0].high.value(), 0.7);
    EXPECT_DOUBLE_EQ(celsius.columns[0].low.value(), 0.125);
    EXPECT_EQ(celsius.columns[0].bar, 0.0) << "a dry day is no gap";
    EXPECT_EQ(celsius.columns[1].high, std::nullopt);
    EXPECT_EQ(celsius.columns[1].bar, 1.0);
    EXPECT_EQ(celsius.columns[2].bar, std::nullopt);
    EXPECT_EQ(PictureOfWeek(days, TemperatureUnit::kFahrenheit).bottomDegrees, 25);
}

TEST(WeekPicture, CutsCurvesAtGaps) {
    std::vector<WeekColumn> columns(6);
    for (const std::size_t i : {1U, 2U, 4U})
        columns[i].high = static_cast<double>(i) / 10;
    EXPECT_EQ(CurveRuns(columns, &WeekColumn::high), (std::vector<CurveRun>{{1, {0.1, 0.2}}, {4, {0.4}}}));
    EXPECT_TRUE(CurveRuns(columns, &WeekColumn::low).empty());
}

TEST(WeekPicture, FlatEmptyAndUnknownWeeksHaveHeights) {
    const std::vector flat = {Day(10.0, 10.0, 0.0)};
    const auto picture = PictureOfWeek(flat, TemperatureUnit::kCelsius);
    EXPECT_EQ(picture.topDegrees, 15);
    EXPECT_EQ(picture.columns[0].high, 0.0);
    EXPECT_EQ(picture.topPrecipitation, kLeastBarScale);
    const std::vector unknown = {Day({}, {}, {})};
    const auto nothing = PictureOfWeek(unknown, TemperatureUnit::kCelsius);
    EXPECT_EQ(nothing.topDegrees, nothing.bottomDegrees);
    EXPECT_EQ(nothing.topPrecipitation, 0);
    EXPECT_EQ(nothing.columns.size(), 1U);
}

}  // namespace
}  // namespace rlx
