#pragma once

#include <QWidget>
#include <array>
#include <vector>

#include "shell/texts.h"
#include "uikit/look.h"
#include "weather/place_forecast.h"
#include "weather/temperature.h"
#include "weather/ui/day_card.h"
#include "weather/ui/day_details.h"
#include "weather/ui/link_button.h"
#include "weather/ui/week_chart.h"

namespace rlx {

/// The days of one forecast: all at a glance, or one with its values and the picture of the week. Hidden days have no
/// forecast to show. References must outlive it.
class CForecastDays : public QWidget {
    Q_OBJECT

public:
    CForecastDays(const ITexts& texts, const CLook& look, const CWeatherIcons& icons, QWidget* parent);

    /// Shows the days of a forecast, on the scale of the unit. The chosen day stays when the forecast has so many.
    void Show(const PlaceForecast& forecast, TemperatureUnit unit, bool dayByDay);

    void ChooseFirst() { m_day = 0; }  ///< at the next `Show`

    /// Goes to the next day (1) or the one before (-1), if there is one.
    void Step(int by);

    /// A tap on the picture of the week, at a point of this widget, chooses its day.
    void TapAt(const QPoint& point);

signals:
    /// The user wants to see one day, or all.
    void DayByDayWanted(bool on);

protected:
    void resizeEvent(QResizeEvent* event) override;

private:
    void MakeCards();
    void MakeDetails();
    CLinkButton* MakeLink(const char* name, SkinKey colour, int tip);
    void Choose(std::size_t day);
    void ShowDay();
    void Arrange();

    const ITexts& m_texts;
    const CLook& m_look;
    const CWeatherIcons& m_icons;
    std::vector<DayView> m_views;  ///< of the days shown
    std::size_t m_day = 0;
    WeekPicture m_week;

    std::array<CDayCard*, kOverviewDays> m_cards{};
    CLinkButton* m_previous = nullptr;
    CLinkButton* m_next = nullptr;
    CLinkButton* m_dayName = nullptr;
    CDayDetails* m_details = nullptr;
    CWeekChart* m_chart = nullptr;
};

}  // namespace rlx
