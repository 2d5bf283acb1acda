#pragma once

#include <QString>
#include <string_view>

#include "weather/forecast.h"
#include "weather/freshness.h"
#include "weather/weather_text.h"

namespace rlx {

/// One day as people read it.
struct DayView {
    QString name;  ///< "Today", "Tomorrow", else the date
    QString date;  ///< "23/11 Mon"
    QString condition;
    QString high;
    QString low;
    QString precipitation;
    QString chance;
    QString wind;
    QString humidity;
    QString sunrise;
    QString sunset;
    std::string_view icon;  ///< name of its picture
    bool today = false;
};

DayView ViewOf(const ForecastDay& day, DayName name, const CWeatherTexts& texts);

}  // namespace rlx
