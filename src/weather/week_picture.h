#pragma once

#include <optional>
#include <span>
#include <vector>

#include "weather/forecast.h"
#include "weather/temperature.h"

namespace rlx {

/// One day of the picture. Heights run from 0 at the bottom to 1 at the top; a value that is not known leaves a gap.
struct WeekColumn {
    Date date;
    std::optional<double> high;
    std::optional<double> low;
    std::optional<double> bar;  ///< precipitation; 0 is a dry day
};

/// The week as a drawing without pixels: two temperature curves over bars of precipitation, one column a day.
struct WeekPicture {
    std::vector<WeekColumn> columns;
    int bottomDegrees = 0;        ///< on the scale of the unit, at height 0
    int topDegrees = 0;           ///< at height 1; equal to `bottomDegrees` when no temperature is known
    double topPrecipitation = 0;  ///< millimetres at height 1; 0 when none is known
};

/// Temperatures reach from the next multiple of 5 degrees below the coldest to the next above the warmest. Bars reach
/// to the wettest day, but at least to `kLeastBarScale`, so that drizzle does not look like a flood.
WeekPicture PictureOfWeek(std::span<const ForecastDay> days, TemperatureUnit unit);

inline constexpr double kLeastBarScale = 5;  ///< millimetres

/// A run of columns [first, first + values.size()) that all have a value: one unbroken line of a curve.
struct CurveRun {
    std::size_t first = 0;
    std::vector<double> values;

    friend bool operator==(const CurveRun&, const CurveRun&) = default;
};

/// The lines of the curve that `member` names (`&WeekColumn::high` or `&WeekColumn::low`), cut at every gap.
std::vector<CurveRun> CurveRuns(std::span<const WeekColumn> columns, std::optional<double> WeekColumn::*member);

}  // namespace rlx
