#include "weather/ui/weather_links.h"

#include "shell/text_ids.h"
#include "uikit/qt_text.h"
#include "weather/text_ids.h"

namespace rlx {

CWeatherLinks::CWeatherLinks(const ITexts& texts, const CLook& look, QWidget* parent)
    : QObject(parent),
      m_texts(texts),
      m_look(look),
      m_parent(parent),
      m_view(Make("view", SkinKey::kWeatherMOREC, kTextDayByDay, &CWeatherLinks::OtherViewWanted)),
      m_unit(Make("unit", SkinKey::kWeatherMOREC, kTextWeatherChangeUnit, &CWeatherLinks::OtherUnitWanted)),
      m_update(Make("update", SkinKey::kWeatherMOREC, kTextUpdate, &CWeatherLinks::UpdateWanted)),
      m_heading(Make("heading", SkinKey::kWeatherCNSC, kTextChooseWeatherPlace, &CWeatherLinks::CityWanted)) {
    m_update->SetIcon("update");
}

CLinkButton* CWeatherLinks::Make(const char* name, SkinKey colour, int tip, void (CWeatherLinks::*wanted)()) {
    auto* button = new CLinkButton(m_look, colour, m_parent);
    button->setObjectName(name);
    button->setToolTip(ToQString(m_texts.Text(tip)));
    button->setAccessibleName(button->toolTip());
    connect(button, &QAbstractButton::clicked, this, wanted);
    return button;
}

void CWeatherLinks::ShowChoices(TemperatureUnit unit, bool dayByDay) {
    const bool celsius = unit == TemperatureUnit::kCelsius;
    m_unit->setText(ToQString(m_texts.Text(celsius ? kTextFahrenheit : kTextCelsius)));
    m_view->setText(ToQString(m_texts.Text(dayByDay ? kTextOverview : kTextDayByDay)));
}

void CWeatherLinks::Arrange(const WeatherLayout& layout, bool hasDays) {
    m_unit->setGeometry(layout.unit);
    m_update->setGeometry(layout.update);
    m_view->setGeometry(layout.view);
    m_view->setVisible(hasDays && !layout.view.isEmpty());
    m_heading->setGeometry(layout.heading);
    m_heading->setVisible(!layout.heading.isEmpty());
}

}  // namespace rlx
