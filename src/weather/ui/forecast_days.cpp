#include "weather/ui/forecast_days.h"

#include "uikit/qt_text.h"
#include "weather/text_ids.h"
#include "weather/ui/weather_layout.h"

namespace rlx {

CForecastDays::CForecastDays(const ITexts& texts, const CLook& look, const CWeatherIcons& icons, QWidget* parent)
    : QWidget(parent), m_texts(texts), m_look(look), m_icons(icons) {
    MakeDetails();
    MakeCards();
}

void CForecastDays::MakeCards() {
    for (std::size_t day = 0; day < m_cards.size(); ++day) {
        m_cards[day] = new CDayCard(m_texts, m_look, m_icons, this);
        m_cards[day]->setObjectName(QStringLiteral("day%1").arg(day));
        connect(m_cards[day], &QAbstractButton::clicked, this, [this, day] {
            m_day = day;
            emit DayByDayWanted(true);
        });
    }
}

void CForecastDays::MakeDetails() {
    m_previous = MakeLink("previousDay", SkinKey::kWeatherMOREC, kTextPreviousDay);
    m_previous->SetIcon("back");
    connect(m_previous, &QAbstractButton::clicked, this, [this] { Step(-1); });
    m_next = MakeLink("nextDay", SkinKey::kWeatherMOREC, kTextNextDay);
    m_next->SetIcon("back", true);
    connect(m_next, &QAbstractButton::clicked, this, [this] { Step(1); });
    m_dayName = MakeLink("dayName", SkinKey::kWeatherDAYSC, kTextOverview);
    connect(m_dayName, &QAbstractButton::clicked, this, [this] { emit DayByDayWanted(false); });
    m_details = new CDayDetails(m_texts, m_look, m_icons, this);
    m_details->setObjectName("dayDetails");
    m_chart = new CWeekChart(m_texts, m_look, this);
    m_chart->setObjectName("weekChart");
}

CLinkButton* CForecastDays::MakeLink(const char* name, SkinKey colour, int tip) {
    auto* button = new CLinkButton(m_look, colour, this);
    button->setObjectName(name);
    button->setToolTip(ToQString(m_texts.Text(tip)));
    button->setAccessibleName(button->toolTip());
    return button;
}

void CForecastDays::Show(const PlaceForecast& forecast, TemperatureUnit unit, bool dayByDay) {
    const auto days = forecast.DaysToShow();
    const CWeatherTexts texts(m_texts, unit);
    m_views.clear();
    for (const ForecastDay& day : days)
        m_views.push_back(ViewOf(day, NameOfDay(day.date, forecast.today, forecast.freshness.stale), texts));
    for (std::size_t day = 0; day < m_cards.size(); ++day) {
        if (day < days.size()) m_cards[day]->Show(m_views[day]);
        m_cards[day]->setVisible(day < days.size() && !dayByDay);
    }
    for (QWidget* part :
         {static_cast<QWidget*>(m_previous), static_cast<QWidget*>(m_next), static_cast<QWidget*>(m_dayName),
          static_cast<QWidget*>(m_details), static_cast<QWidget*>(m_chart)})
        part->setVisible(dayByDay);
    setVisible(!days.empty());
    m_week = PictureOfWeek(days, unit);
    if (m_day >= days.size()) m_day = 0;
    ShowDay();
    Arrange();
}

void CForecastDays::ShowDay() {
    if (m_views.empty()) return;
    const DayView& view = m_views[m_day];
    m_details->Show(view);
    m_dayName->setText(view.name == view.date ? view.date : view.name + QStringLiteral(" ") + view.date);
    m_chart->Show(m_week, m_day);
    m_previous->setEnabled(m_day > 0);
    m_next->setEnabled(m_day + 1 < m_views.size());
}

void CForecastDays::Arrange() {
    const auto cards = LayOutDays(rect(), m_views.size());
    for (std::size_t day = 0; day < cards.size(); ++day)
        m_cards[day]->setGeometry(cards[day]);
    const DetailLayout detail = LayOutDetail(rect());
    m_previous->setGeometry(detail.previous);
    m_next->setGeometry(detail.next);
    m_dayName->setGeometry(detail.name);
    m_details->setGeometry(detail.details);
    m_chart->setGeometry(detail.chart);
}

void CForecastDays::resizeEvent(QResizeEvent* /*event*/) {
    Arrange();
}

void CForecastDays::Choose(std::size_t day) {
    m_day = day;
    ShowDay();
}

void CForecastDays::Step(int by) {
    const int day = static_cast<int>(m_day) + by;
    if (day >= 0 && day < static_cast<int>(m_views.size())) Choose(static_cast<std::size_t>(day));
}

void CForecastDays::TapAt(const QPoint& point) {
    if (!m_chart->isVisible()) return;
    if (const auto day = m_chart->DayAt(m_chart->mapFrom(this, point))) Choose(*day);
}

}  // namespace rlx
