#include "weather/week_picture.h"

#include <algorithm>
#include <cmath>

namespace rlx {
namespace {

constexpr int kDegreeStep = 5;

struct Range {
    double low = INFINITY;
    double high = -INFINITY;

    void Take(std::optional<double> value) {
        if (!value) return;
        low = std::min(low, *value);
        high = std::max(high, *value);
    }
};

void ScaleTemperatures(WeekPicture& picture, std::span<const ForecastDay> days, TemperatureUnit unit) {
    Range range;
    for (const auto& day : days) {
        range.Take(day.high);
        range.Take(day.low);
    }
    if (range.low > range.high) return;
    const auto steps = [&](double celsius) { return OnScale(celsius, unit) / kDegreeStep; };
    picture.bottomDegrees = static_cast<int>(std::floor(steps(range.low))) * kDegreeStep;
    picture.topDegrees = static_cast<int>(std::ceil(steps(range.high))) * kDegreeStep;
    if (picture.topDegrees == picture.bottomDegrees) picture.topDegrees += kDegreeStep;
}

void ScalePrecipitation(WeekPicture& picture, std::span<const ForecastDay> days) {
    Range range;
    for (const auto& day : days)
        range.Take(day.precipitation);
    if (range.low <= range.high) picture.topPrecipitation = std::max(range.high, kLeastBarScale);
}

}  // namespace

WeekPicture PictureOfWeek(std::span<const ForecastDay> days, TemperatureUnit unit) {
    WeekPicture picture;
    ScaleTemperatures(picture, days, unit);
    ScalePrecipitation(picture, days);
    const auto height = [&](std::optional<double> celsius) -> std::optional<double> {
        if (!celsius) return {};
        return (OnScale(*celsius, unit) - picture.bottomDegrees) / (picture.topDegrees - picture.bottomDegrees);
    };
    for (const auto& day : days) {
        picture.columns.push_back({day.date, height(day.high), height(day.low), {}});
        if (day.precipitation) picture.columns.back().bar = *day.precipitation / picture.topPrecipitation;
    }
    return picture;
}

std::vector<CurveRun> CurveRuns(std::span<const WeekColumn> columns, std::optional<double> WeekColumn::*member) {
    std::vector<CurveRun> runs;
    bool open = false;
    for (std::size_t i = 0; i < columns.size(); ++i) {
        const auto value = columns[i].*member;
        if (value) {
            if (!open) runs.push_back({i, {}});
            runs.back().values.push_back(*value);
        }
        open = value.has_value();
    }
    return runs;
}

}  // namespace rlx
