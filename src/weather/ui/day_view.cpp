#include "weather/ui/day_view.h"

#include "uikit/qt_text.h"
#include "weather/weather_code.h"

namespace rlx {

DayView ViewOf(const ForecastDay& day, DayName name, const CWeatherTexts& texts) {
    DayView view;
    view.name = ToQString(texts.Day(day.date, name));
    view.date = ToQString(texts.DateAndWeekday(day.date));
    view.condition = ToQString(texts.Condition(day));
    view.high = ToQString(texts.Temperature(day.high));
    view.low = ToQString(texts.Temperature(day.low));
    view.precipitation = ToQString(texts.Precipitation(day.precipitation));
    view.chance = ToQString(texts.PerCent(day.probability));
    view.wind = ToQString(texts.Wind(day));
    view.humidity = ToQString(texts.PerCent(day.humidity));
    view.sunrise = ToQString(texts.Time(day.sunrise));
    view.sunset = ToQString(texts.Time(day.sunset));
    view.icon = ConditionOf(day.code).icon;
    view.today = name == DayName::kToday;
    return view;
}

}  // namespace rlx
