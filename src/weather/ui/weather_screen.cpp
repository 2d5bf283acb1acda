#include "weather/ui/weather_screen.h"

#include <QContextMenuEvent>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QPainter>
#include <cstdlib>

#include "base/number.h"
#include "shell/fill_text.h"
#include "shell/text_ids.h"
#include "uikit/qt_text.h"
#include "weather/icon_set.h"
#include "weather/text_ids.h"
#include "weather/ui/weather_layout.h"

namespace rlx {

namespace {

constexpr int kSwipe = 40;  // pixels

std::int64_t MinuteNumber(const DateTime& time) {
    return SecondNumber(time) / 60;
}

}  // namespace

CWeatherScreen::CWeatherScreen(WeatherPorts ports)
    : m_ports(std::move(ports)),
      m_choices(m_ports.settings),
      m_updates(m_ports.cities, m_ports.store, m_ports.boxes, m_ports.resources, m_ports.withServer),
      m_icons(m_ports.files),
      m_places(new CPlaceButtons(m_ports.look, this)),
      m_links(new CWeatherLinks(m_ports.resources, m_ports.look, this)),
      m_menu(m_ports.resources, m_ports.files, m_ports.applicationFolder, m_choices, this) {
    setObjectName("weatherScreen");
    setFocusPolicy(Qt::StrongFocus);
    ConnectLinks();
    ConnectMenu();
    MakeBody();
    connect(&m_ports.look, &CLook::Changed, this, &CWeatherScreen::ChooseIcons);
    Refresh();
}

void CWeatherScreen::ConnectLinks() {
    connect(m_places, &CPlaceButtons::Chosen, this, &CWeatherScreen::SelectPlace);
    connect(m_links, &CWeatherLinks::CityWanted, this, [this] { ChangePlace(m_shown); });
    connect(m_links, &CWeatherLinks::OtherViewWanted, this, [this] { SetDayByDay(!m_dayByDay); });
    connect(m_links, &CWeatherLinks::OtherUnitWanted, this, [this] {
        const bool celsius = m_unit == TemperatureUnit::kCelsius;
        m_choices.SaveUnit(celsius ? TemperatureUnit::kFahrenheit : TemperatureUnit::kCelsius);
        Refresh();
    });
    connect(m_links, &CWeatherLinks::UpdateWanted, this, &CWeatherScreen::Update);
}

void CWeatherScreen::MakeBody() {
    m_days = new CForecastDays(m_ports.resources, m_ports.look, m_icons, this);
    connect(m_days, &CForecastDays::DayByDayWanted, this, &CWeatherScreen::SetDayByDay);
    m_noForecast = new CNoForecast(m_ports.look, m_icons, this);
    connect(m_noForecast, &CNoForecast::HelpWanted, this, [this] { HasCity() ? Update() : ChangePlace(m_shown); });
    m_origin = new CForecastOrigin(m_ports.resources, m_ports.look, this);
    m_origin->setObjectName("origin");
}

void CWeatherScreen::ConnectMenu() {
    connect(m_places, &CPlaceButtons::MenuWanted, this,
            [this](std::size_t slot, const QPoint& globalPoint) { m_menu.Open(slot, m_dayByDay, globalPoint); });
    connect(&m_menu, &CWeatherMenu::CityWanted, this, &CWeatherScreen::ChangePlace);
    connect(&m_menu, &CWeatherMenu::OtherViewWanted, this, [this] { SetDayByDay(!m_dayByDay); });
    connect(&m_menu, &CWeatherMenu::IconSetChosen, this, &CWeatherScreen::ChooseIcons);
}

void CWeatherScreen::ChooseIcons() {
    const auto chosen = m_choices.IconFolder();
    const auto ofSkin = m_ports.look.Skin().Name(SkinKey::kWeatherWICOF);
    m_icons.SetFolder(
        ChooseIconSet(m_ports.files, {m_ports.applicationFolder, m_ports.look.Skin().Folder(), chosen, ofSkin}));
    update();
}

QString CWeatherScreen::Text(int id) const {
    return ToQString(m_ports.resources.Text(id));
}

CPlaceForecasts CWeatherScreen::Forecasts() {
    return {m_ports.cities, *m_times, m_ports.store};
}

void CWeatherScreen::Refresh() {
    m_times.emplace(m_ports.cities, m_ports.clock, m_ports.resources, LoadClockSettings(m_ports.settings));
    m_cities = m_choices.LoadPlaces();
    m_shown = m_choices.ShownPlace();
    m_unit = m_choices.Unit();
    m_dayByDay = m_choices.DayByDay();
    for (std::size_t slot = 0; slot < m_cities.size(); ++slot) {
        const QString name = ToQString(m_ports.cities.GetName(m_cities[slot]));
        m_places->Show(slot, name.isEmpty() ? Text(kTextPlaceWithoutCity) : name,
                       ToQString(m_ports.cities.GetPlace(m_cities[slot])), slot == m_shown);
    }
    m_links->ShowChoices(m_unit, m_dayByDay);
    ChooseIcons();
    ShowForecast();
}

/// Reads the forecast of the place shown, and what its calendar says now.
void CWeatherScreen::ShowForecast() {
    m_minute = MinuteNumber(m_ports.clock.Now());
    m_forecast = Forecasts().Of(m_cities[m_shown]);
    if (HasCity()) {
        m_links->ShowCity(
            ToQString(m_forecast.country.empty() ? m_forecast.name : m_forecast.name + u", " + m_forecast.country));
        const bool served = !m_updates.IsNotServed(m_forecast.place);
        m_noForecast->Show(Text(served ? kTextNoForecast : kTextPlaceNotServed), Text(kTextUpdate), "update");
    } else {
        m_links->ShowCity(Text(kTextPlaceWithoutCity));
        m_noForecast->Show(Text(kTextPlaceGone), Text(kTextChooseWeatherPlace), {});
    }
    m_days->Show(m_forecast, m_unit, m_dayByDay);
    m_noForecast->setVisible(!m_forecast.stored);
    m_origin->Show(m_forecast, m_updates.IsNotUpdated(m_forecast.place));
    Arrange();
    update();
}

void CWeatherScreen::Arrange() {
    const WeatherLayout layout = LayOutWeather(rect());
    m_places->Arrange(layout.places);
    m_links->Arrange(layout, m_forecast.stored.has_value());
    m_origin->setGeometry(layout.origin);
    m_origin->SetTwoLines(layout.originInTwoLines);
    m_days->setGeometry(layout.body);
    m_noForecast->setGeometry(layout.body);
}

void CWeatherScreen::paintEvent(QPaintEvent* /*event*/) {
    QPainter painter(this);
    m_ports.look.PaintBackground(painter, rect(), LookPicture::kWeather);
}

void CWeatherScreen::resizeEvent(QResizeEvent* /*event*/) {
    Arrange();
}

/// Another program may have fetched a forecast, and midnight may have passed in the city.
void CWeatherScreen::Tick() {
    if (!m_updates.IsRunning() && MinuteNumber(m_ports.clock.Now()) != m_minute) ShowForecast();
}

void CWeatherScreen::Entered() {
    m_ports.store.EnsureCreated();
    ShowForecast();
    ShowTip();
}

void CWeatherScreen::ShowTip() {
    const WeatherTip tip = m_choices.TakeTip(m_dayByDay);
    if (tip == WeatherTip::kNone) return;
    const int text = tip == WeatherTip::kDays ? kTextWeatherTipDays : kTextWeatherTip;
    m_ports.boxes.Show(
        {m_ports.resources.Text(kTextTip), m_ports.resources.Text(text), BoxIcon::kInformation, BoxButtons::kOk});
}

bool CWeatherScreen::GoBack() {
    if (!m_dayByDay) return false;
    SetDayByDay(false);
    return true;
}

void CWeatherScreen::Update() {
    if (!m_updates.Run(
            m_cities, [this] { return Forecasts().UtcNow(); }, size()))
        return;
    m_days->ChooseFirst();
    ShowForecast();
}

void CWeatherScreen::ChangePlace(std::size_t slot) {
    const auto title =
        FillText(m_ports.resources.Text(kTextWeatherPlace), {FormatInteger(static_cast<std::int64_t>(slot) + 1)});
    const auto city = m_ports.chooseCity(window(), ToQString(title), m_cities[slot]);
    if (!city) return;
    m_choices.SavePlace(slot, *city);
    m_choices.SaveShownPlace(slot);
    m_days->ChooseFirst();
    Refresh();
}

void CWeatherScreen::SelectPlace(std::size_t slot) {
    m_choices.SaveShownPlace(slot);
    if (slot != m_shown) m_days->ChooseFirst();
    Refresh();
}

void CWeatherScreen::SetDayByDay(bool on) {
    m_choices.SaveDayByDay(on);
    Refresh();
    setFocus();
    if (on) ShowTip();
}

/// To the next day, or to the next place in the overview.
void CWeatherScreen::Step(int by) {
    m_dayByDay ? m_days->Step(by) : StepPlace(by);
}

void CWeatherScreen::StepPlace(int by) {
    constexpr int kCount = static_cast<int>(kWeatherPlaceCount);
    SelectPlace(static_cast<std::size_t>((static_cast<int>(m_shown) + by + kCount) % kCount));
}

void CWeatherScreen::keyPressEvent(QKeyEvent* event) {
    switch (event->key()) {
        case Qt::Key_Left:
            Step(-1);
            break;
        case Qt::Key_Right:
            Step(1);
            break;
        case Qt::Key_Up:
            StepPlace(-1);
            break;
        case Qt::Key_Down:
            StepPlace(1);
            break;
        case Qt::Key_Return:
        case Qt::Key_Enter:
        case Qt::Key_Space:
            SetDayByDay(!m_dayByDay);
            break;
        case Qt::Key_F2:
            ChangePlace(m_shown);
            break;
        case Qt::Key_F5:
            Update();
            break;
        default:
            CScreen::keyPressEvent(event);
    }
}

void CWeatherScreen::mousePressEvent(QMouseEvent* event) {
    if (event->button() == Qt::LeftButton) m_pressed = event->position().toPoint();
}

/// A swipe along goes on, a tap on the picture of the week chooses its day.
void CWeatherScreen::mouseReleaseEvent(QMouseEvent* event) {
    const auto pressed = std::exchange(m_pressed, std::nullopt);
    if (event->button() != Qt::LeftButton || !pressed) return;
    const QPoint way = event->position().toPoint() - *pressed;
    if (std::abs(way.x()) >= kSwipe && std::abs(way.x()) > 2 * std::abs(way.y())) {
        Step(way.x() < 0 ? 1 : -1);
    } else {
        m_days->TapAt(m_days->mapFrom(this, *pressed));
    }
}

void CWeatherScreen::contextMenuEvent(QContextMenuEvent* event) {
    m_menu.Open(m_shown, m_dayByDay, event->globalPos());
}

}  // namespace rlx
