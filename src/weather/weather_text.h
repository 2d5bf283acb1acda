#pragma once

#include <optional>
#include <string>

#include "shell/texts.h"
#include "weather/forecast.h"
#include "weather/freshness.h"
#include "weather/temperature.h"

namespace rlx {

/// The values of a forecast as people read them. What is not known is a dash. Numbers have "." as decimal separator.
/// Does not own the texts; any thread.
class CWeatherTexts {
public:
    CWeatherTexts(const ITexts& texts, TemperatureUnit unit) : m_texts(texts), m_unit(unit) {}

    /// "-3°": whole degrees on the scale of the unit.
    std::u16string Degrees(std::optional<double> celsius) const;

    /// "-3 °C" or "27 °F".
    std::u16string Temperature(std::optional<double> celsius) const;

    /// "4.2 mm"; from 10 mm on without a decimal.
    std::u16string Precipitation(std::optional<double> millimetres) const;

    /// "75%"
    std::u16string PerCent(std::optional<int> value) const;

    /// "22 km/h WSW"; the speed alone when the direction is not known.
    std::u16string Wind(const ForecastDay& day) const;

    /// "08:14"
    std::u16string Time(std::optional<TimeOfDay> time) const;

    /// "Partly cloudy"
    std::u16string Condition(const ForecastDay& day) const;

    /// "Today", "Tomorrow", else `DateAndWeekday`.
    std::u16string Day(const Date& day, DayName name) const;

    /// "23/11 Mon"
    std::u16string DateAndWeekday(const Date& day) const;

    /// "Forecast of 22/11/2026 18:00 UTC"
    std::u16string Issued(const Forecast& forecast) const;

    /// "Source: Open-Meteo"
    std::u16string Source(const Forecast& forecast) const;

private:
    std::u16string WithUnit(int textId, std::u16string_view value) const;
    std::u16string Missing() const;

    const ITexts& m_texts;
    TemperatureUnit m_unit;
};

}  // namespace rlx
