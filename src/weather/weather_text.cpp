#include "weather/weather_text.h"

#include <cmath>

#include "base/number.h"
#include "places/text_ids.h"
#include "shell/fill_text.h"
#include "shell/text_ids.h"
#include "weather/feed_fields.h"
#include "weather/text_ids.h"
#include "weather/weather_code.h"
#include "weather/wind.h"

namespace rlx {

std::u16string CWeatherTexts::Degrees(std::optional<double> celsius) const {
    return celsius ? WithUnit(kTextDegreesPlain, FormatInteger(WholeDegrees(*celsius, m_unit))) : Missing();
}

std::u16string CWeatherTexts::Temperature(std::optional<double> celsius) const {
    const int text = m_unit == TemperatureUnit::kFahrenheit ? kTextDegreesFahrenheit : kTextDegreesCelsius;
    return celsius ? WithUnit(text, FormatInteger(WholeDegrees(*celsius, m_unit))) : Missing();
}

std::u16string CWeatherTexts::Precipitation(std::optional<double> millimetres) const {
    // 9.96 would become "10.0" with one decimal.
    return millimetres ? WithUnit(kTextMillimetres, FormatFixed(*millimetres, *millimetres < 9.95 ? 1 : 0)) : Missing();
}

std::u16string CWeatherTexts::PerCent(std::optional<int> value) const {
    return value ? WithUnit(kTextPerCent, FormatInteger(*value)) : Missing();
}

std::u16string CWeatherTexts::Wind(const ForecastDay& day) const {
    if (!day.windSpeed) return Missing();
    auto speed = WithUnit(kTextKilometresPerHour, FormatInteger(std::lround(*day.windSpeed)));
    if (!day.windDirection) return speed;
    return FillText(m_texts.Text(kTextWindFrom), {speed, m_texts.Text(CompassPointText(*day.windDirection))});
}

std::u16string CWeatherTexts::Time(std::optional<TimeOfDay> time) const {
    return time ? FormatFeedTime(*time) : Missing();
}

std::u16string CWeatherTexts::Condition(const ForecastDay& day) const {
    return m_texts.Text(ConditionOf(day.code).textId);
}

std::u16string CWeatherTexts::Day(const Date& day, DayName name) const {
    switch (name) {
        case DayName::kToday:
            return m_texts.Text(kTextWeatherToday);
        case DayName::kTomorrow:
            return m_texts.Text(kTextWeatherTomorrow);
        case DayName::kDate:
            break;
    }
    return DateAndWeekday(day);
}

std::u16string CWeatherTexts::DateAndWeekday(const Date& day) const {
    return FormatTwoDigits(day.day) + u"/" + FormatTwoDigits(day.month) + u" " +
           m_texts.Text(kTextSunday + Weekday(day));
}

std::u16string CWeatherTexts::Issued(const Forecast& forecast) const {
    const auto& [year, month, day] = forecast.issued.date;
    const auto instant = FormatTwoDigits(day) + u"/" + FormatTwoDigits(month) + u"/" + FormatInteger(year) + u" " +
                         FormatFeedTime({forecast.issued.hour, forecast.issued.minute});
    return WithUnit(kTextForecastOf, WithUnit(kTextInstantUtc, instant));
}

std::u16string CWeatherTexts::Source(const Forecast& forecast) const {
    return WithUnit(kTextSource, forecast.source);
}

std::u16string CWeatherTexts::WithUnit(int textId, std::u16string_view value) const {
    return FillText(m_texts.Text(textId), {value});
}

std::u16string CWeatherTexts::Missing() const {
    return m_texts.Text(kTextMissingValue);
}

}  // namespace rlx
