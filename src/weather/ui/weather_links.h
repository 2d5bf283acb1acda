#pragma once

#include <QObject>

#include "shell/texts.h"
#include "uikit/look.h"
#include "weather/temperature.h"
#include "weather/ui/link_button.h"
#include "weather/ui/weather_layout.h"

namespace rlx {

/// The links above a forecast: the name of its city, the view, the unit and the update. References must outlive it.
class CWeatherLinks : public QObject {
    Q_OBJECT

public:
    /// The buttons, "heading", "view", "unit" and "update", are children of `parent`, and so is this.
    CWeatherLinks(const ITexts& texts, const CLook& look, QWidget* parent);

    void ShowCity(const QString& name) { m_heading->setText(name); }

    /// Each button says what it changes to.
    void ShowChoices(TemperatureUnit unit, bool dayByDay);

    void Arrange(const WeatherLayout& layout, bool hasDays);

signals:
    void CityWanted();
    void OtherViewWanted();
    void OtherUnitWanted();
    void UpdateWanted();

private:
    CLinkButton* Make(const char* name, SkinKey colour, int tip, void (CWeatherLinks::*wanted)());

    const ITexts& m_texts;
    const CLook& m_look;
    QWidget* m_parent;
    CLinkButton* m_view;
    CLinkButton* m_unit;
    CLinkButton* m_update;
    CLinkButton* m_heading;
};

}  // namespace rlx
