#include "weather/ui/weather_screen.h"

#include <QContextMenuEvent>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QPainter>
#include <algorithm>
#include <cmath>
#include <cstdlib>

#include "base/number.h"
#include "shell/command_ids.h"
#include "shell/fill_text.h"
#include "shell/text_ids.h"
#include "uikit/qt_text.h"
#include "weather/icon_set.h"
#include "weather/text_ids.h"
#include "weather/ui/update_progress.h"
#include "weather/ui/weather_layout.h"
#include "weather/weather_code.h"

namespace rlx {

namespace {

constexpr int kLongTap = 600;  // milliseconds
constexpr int kSwipe = 40;     // pixels

std::int64_t MinuteNumber(const DateTime& time) {
    return SecondNumber(time) / 60;
}

}  // namespace

CWeatherScreen::CWeatherScreen(WeatherPorts ports)
    : m_ports(std::move(ports)), m_choices(m_ports.settings), m_icons(m_ports.files), m_menu(this) {
    setObjectName("weatherScreen");
    setFocusPolicy(Qt::StrongFocus);
    MakePlaces();
    MakeLinks();
    MakeDays();
    MakeMenu();
    connect(&m_ports.look, &CLook::Changed, this, [this] {
        ChooseIcons();
        update();
    });
    Refresh();
}

void CWeatherScreen::MakePlaces() {
    for (std::size_t slot = 0; slot < m_placeButtons.size(); ++slot) {
        auto* button = new CLinkButton(m_ports.look, SkinKey::kWeatherCNSC, this);
        button->setObjectName(QStringLiteral("place%1").arg(slot));
        button->setCheckable(true);
        button->installEventFilter(this);
        connect(button, &QAbstractButton::clicked, this, [this, slot] { SelectPlace(slot); });
        m_placeButtons[slot] = button;
    }
    CLinkButton::WriteAlike({m_placeButtons.begin(), m_placeButtons.end()});
    m_longTap.setSingleShot(true);
    m_longTap.setInterval(kLongTap);
    connect(&m_longTap, &QTimer::timeout, this, [this] {
        CLinkButton* button = m_placeButtons[m_held];
        button->setDown(false);
        OpenMenu(m_held, button->mapToGlobal(button->rect().bottomLeft()));
    });
}

void CWeatherScreen::MakeLinks() {
    const auto add = [this](const char* name, SkinKey colour, int tip, std::function<void()> act) {
        auto* button = new CLinkButton(m_ports.look, colour, this);
        button->setObjectName(name);
        const QString text = ToQString(m_ports.resources.Text(tip));
        button->setToolTip(text);
        button->setAccessibleName(text);
        connect(button, &QAbstractButton::clicked, this, std::move(act));
        return button;
    };
    constexpr auto kLink = SkinKey::kWeatherMOREC;
    m_view = add("view", kLink, kTextDayByDay, [this] { SetDayByDay(!m_dayByDay); });
    m_unitLink = add("unit", kLink, kTextWeatherChangeUnit, [this] {
        const bool celsius = m_unit == TemperatureUnit::kCelsius;
        m_choices.SaveUnit(celsius ? TemperatureUnit::kFahrenheit : TemperatureUnit::kCelsius);
        Refresh();
    });
    m_update = add("update", kLink, kTextUpdate, [this] { Update(); });
    m_update->SetIcon("update");
    m_heading = add("heading", SkinKey::kWeatherCNSC, kTextChooseWeatherPlace, [this] { ChangePlace(m_shown); });
    m_previous = add("previousDay", kLink, kTextPreviousDay, [this] { StepDay(-1); });
    m_previous->SetIcon("back");
    m_next = add("nextDay", kLink, kTextNextDay, [this] { StepDay(1); });
    m_next->SetIcon("back", true);
    m_dayName = add("dayName", SkinKey::kWeatherDAYSC, kTextOverview, [this] { SetDayByDay(false); });
    m_empty = add("updateNow", kLink, kTextUpdate, [this] { HasCity() ? Update() : ChangePlace(m_shown); });
}

void CWeatherScreen::MakeDays() {
    for (std::size_t day = 0; day < m_cards.size(); ++day) {
        m_cards[day] = new CDayCard(m_ports.resources, m_ports.look, m_icons, this);
        m_cards[day]->setObjectName(QStringLiteral("day%1").arg(day));
        connect(m_cards[day], &QAbstractButton::clicked, this, [this, day] {
            m_day = day;
            SetDayByDay(true);
        });
    }
    m_details = new CDayDetails(m_ports.resources, m_ports.look, m_icons, this);
    m_details->setObjectName("dayDetails");
    m_chart = new CWeekChart(m_ports.resources, m_ports.look, this);
    m_chart->setObjectName("weekChart");
    m_origin = new CForecastOrigin(m_ports.look, this);
    m_origin->setObjectName("origin");
}

void CWeatherScreen::MakeMenu() {
    m_commands.Add(kCommandWeatherPlace, this, [this] { ChangePlace(m_held); });
    m_commands.Add(kCommandWeatherDays, this, [this] { SetDayByDay(!m_dayByDay); })->setCheckable(true);
    m_menu.setObjectName("weatherMenu");
    if (const auto entries = m_ports.resources.Menu(kMenuWeather)) FillMenu(m_menu, *entries, m_commands);
    m_iconMenu = m_menu.addMenu(ToQString(m_ports.resources.Text(kTextIconSet)));
    connect(m_iconMenu, &QMenu::aboutToShow, this, &CWeatherScreen::FillIconSets);
}

/// The folders are looked at each time, so that a set that was just copied there can be chosen.
void CWeatherScreen::FillIconSets() {
    m_iconMenu->clear();
    const auto chosen = m_choices.IconFolder();
    const auto add = [&](const QString& text, const std::u16string& folder) {
        QAction* action = m_iconMenu->addAction(text);
        action->setCheckable(true);
        action->setChecked(folder == chosen);
        connect(action, &QAction::triggered, this, [this, folder] {
            m_choices.SaveIconFolder(folder);
            ChooseIcons();
            update();
        });
    };
    add(ToQString(m_ports.resources.Text(kTextIconsOfSkin)), {});
    add(ToQString(m_ports.resources.Text(kTextIconsStandard)), u"default");
    for (const auto& folder : FindIconSets(m_ports.files, m_ports.applicationFolder))
        add(ToQString(std::u16string_view(folder).substr(folder.rfind(u'\\') + 1)), folder);
}

void CWeatherScreen::ChooseIcons() {
    const auto chosen = m_choices.IconFolder();
    const auto ofSkin = m_ports.look.Skin().Name(SkinKey::kWeatherWICOF);
    m_icons.SetFolder(
        ChooseIconSet(m_ports.files, {m_ports.applicationFolder, m_ports.look.Skin().Folder(), chosen, ofSkin}));
}

CPlaceForecasts CWeatherScreen::Forecasts() {
    return {m_ports.cities, *m_times, m_ports.store};
}

void CWeatherScreen::Refresh() {
    m_times.emplace(m_ports.cities, m_ports.clock, m_ports.resources, LoadClockSettings(m_ports.settings));
    m_places = m_choices.LoadPlaces();
    m_shown = m_choices.ShownPlace();
    m_unit = m_choices.Unit();
    m_dayByDay = m_choices.DayByDay();
    for (std::size_t slot = 0; slot < m_places.size(); ++slot) {
        const QString name = ToQString(m_ports.cities.GetName(m_places[slot]));
        m_placeButtons[slot]->setText(name.isEmpty() ? ToQString(m_ports.resources.Text(kTextPlaceWithoutCity)) : name);
        m_placeButtons[slot]->setToolTip(ToQString(m_ports.cities.GetPlace(m_places[slot])));
        m_placeButtons[slot]->setChecked(slot == m_shown);
    }
    const bool celsius = m_unit == TemperatureUnit::kCelsius;
    m_unitLink->setText(ToQString(m_ports.resources.Text(celsius ? kTextFahrenheit : kTextCelsius)));
    m_view->setText(ToQString(m_ports.resources.Text(m_dayByDay ? kTextOverview : kTextDayByDay)));
    ChooseIcons();
    ShowForecast();
}

/// Reads the forecast of the place shown, and what its calendar says now.
void CWeatherScreen::ShowForecast() {
    m_minute = MinuteNumber(m_ports.clock.Now());
    m_forecast = Forecasts().Of(m_places[m_shown]);
    m_heading->setText(
        ToQString(m_forecast.country.empty() ? m_forecast.name : m_forecast.name + u", " + m_forecast.country));
    if (!HasCity()) m_heading->setText(ToQString(m_ports.resources.Text(kTextPlaceWithoutCity)));
    const int act = HasCity() ? kTextUpdate : kTextChooseWeatherPlace;
    m_empty->setText(ToQString(m_ports.resources.Text(act)));
    m_empty->setAccessibleName(m_empty->text());
    m_empty->setToolTip(m_empty->text());
    m_empty->SetIcon(HasCity() ? "update" : "");
    const auto days = m_forecast.DaysToShow().size();
    if (m_day >= days) m_day = 0;
    ShowDays();
    ShowOrigin();
    Arrange();
    update();
}

void CWeatherScreen::ShowDays() {
    const auto days = m_forecast.DaysToShow();
    const CWeatherTexts texts(m_ports.resources, m_unit);
    const auto viewOf = [&](std::size_t day) {
        const auto name = NameOfDay(days[day].date, m_forecast.today, m_forecast.freshness.stale);
        return ViewOf(days[day], name, texts);
    };
    for (std::size_t day = 0; day < days.size(); ++day)
        m_cards[day]->Show(viewOf(day));
    if (days.empty()) return;
    const DayView view = viewOf(m_day);
    m_details->Show(view);
    m_dayName->setText(view.name == view.date ? view.date : view.name + QStringLiteral(" ") + view.date);
    m_chart->Show(PictureOfWeek(days, m_unit), m_day);
    m_previous->setEnabled(m_day > 0);
    m_next->setEnabled(m_day + 1 < days.size());
}

void CWeatherScreen::ShowOrigin() {
    const auto& resources = m_ports.resources;
    if (!m_forecast.stored) {
        m_origin->Show({}, {}, {});
        return;
    }
    const auto& forecast = m_forecast.stored->forecast;
    const CWeatherTexts texts(resources, m_unit);
    QStringList marks;
    if (m_forecast.freshness.stale) marks << ToQString(resources.Text(kTextStale));
    if (m_notUpdated.contains(m_forecast.place)) marks << ToQString(resources.Text(kTextNotUpdated));
    if (IsSample(forecast)) marks << ToQString(resources.Text(kTextSample));
    const auto source = m_forecast.IsOver() ? resources.Text(kTextDaysGone) : texts.Source(forecast);
    m_origin->Show(marks, ToQString(texts.Issued(forecast)), ToQString(source));
}

void CWeatherScreen::Arrange() {
    const WeatherLayout layout = LayOutWeather(rect());
    const auto days = m_forecast.DaysToShow().size();
    for (std::size_t slot = 0; slot < m_placeButtons.size(); ++slot)
        m_placeButtons[slot]->setGeometry(layout.places[slot]);
    m_unitLink->setGeometry(layout.unit);
    m_update->setGeometry(layout.update);
    m_view->setGeometry(layout.view);
    m_view->setVisible(days > 0 && !layout.view.isEmpty());
    m_heading->setGeometry(layout.heading);
    m_heading->setVisible(!layout.heading.isEmpty());
    m_origin->setGeometry(layout.origin);
    m_origin->SetTwoLines(layout.originInTwoLines);
    const auto cards = LayOutDays(layout.body, days);
    for (std::size_t day = 0; day < m_cards.size(); ++day) {
        m_cards[day]->setVisible(day < days && !m_dayByDay);
        if (day < days) m_cards[day]->setGeometry(cards[day]);
    }
    const DetailLayout detail = LayOutDetail(layout.body);
    const std::pair<QWidget*, QRect> parts[] = {{m_previous, detail.previous},
                                                {m_next, detail.next},
                                                {m_dayName, detail.name},
                                                {m_details, detail.details},
                                                {m_chart, detail.chart}};
    for (const auto& [widget, place] : parts) {
        widget->setGeometry(place);
        widget->setVisible(days > 0 && m_dayByDay);
    }
    const QRect& body = layout.body;
    const int width = std::min(body.width() / 2, 160);
    m_empty->setGeometry(body.center().x() - width / 2, body.top() + body.height() * 3 / 4, width,
                         std::clamp(body.height() / 6, 28, 48));
    m_empty->setVisible(days == 0);
}

void CWeatherScreen::paintEvent(QPaintEvent* /*event*/) {
    QPainter painter(this);
    m_ports.look.PaintBackground(painter, rect(), LookPicture::kWeather);
    if (m_forecast.stored) return;
    const QRectF body = LayOutWeather(rect()).body;
    painter.setRenderHint(QPainter::SmoothPixmapTransform);
    m_icons.Paint(painter, {body.left(), body.top() + body.height() * 0.08, body.width(), body.height() * 0.38},
                  kNoWeatherIcon);
    QFont font = painter.font();
    font.setPixelSize(static_cast<int>(std::clamp(body.height() * 0.08, 12.0, 26.0)));
    painter.setFont(font);
    painter.setPen(m_ports.look.Colour(SkinKey::kWeatherSATC));
    painter.drawText(QRectF(body.left(), body.top() + body.height() * 0.48, body.width(), body.height() * 0.24),
                     Qt::AlignCenter | Qt::TextWordWrap, EmptyText());
}

QString CWeatherScreen::EmptyText() const {
    int text = kTextPlaceGone;
    if (HasCity()) text = m_notServed.contains(m_forecast.place) ? kTextPlaceNotServed : kTextNoForecast;
    return ToQString(m_ports.resources.Text(text));
}

void CWeatherScreen::resizeEvent(QResizeEvent* /*event*/) {
    Arrange();
}

/// Another program may have fetched a forecast, and midnight may have passed in the city.
void CWeatherScreen::Tick() {
    if (!m_updating && MinuteNumber(m_ports.clock.Now()) != m_minute) ShowForecast();
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
    if (m_updating) return;
    m_updating = true;
    m_ports.store.EnsureCreated();
    const auto places = PlacesToUpdate();
    m_ports.withServer([&](IForecastServer& server) {
        CUpdateProgress progress(server, m_ports.resources);
        const auto request = [&](const std::u16string& feedName) { return server.Ask(feedName, size()); };
        CWeatherUpdate update(m_ports.store, request, m_ports.boxes, m_ports.resources);
        const auto results = update.Run(
            places, [this] { return Forecasts().UtcNow(); }, &progress);
        TakeResults(places, results);
    });
    m_updating = false;
    m_day = 0;
    ShowForecast();
}

std::vector<std::u16string> CWeatherScreen::PlacesToUpdate() {
    std::vector<std::u16string> places;
    for (const auto city : m_places) {
        const auto place = m_ports.cities.GetPlace(city);
        if (!place.empty() && std::ranges::find(places, place) == places.end()) places.push_back(place);
    }
    return places;
}

/// What is shown of a place that could not be updated is the last good forecast, and says so.
void CWeatherScreen::TakeResults(const std::vector<std::u16string>& places, const std::vector<PlaceUpdate>& results) {
    const bool unreachable = !results.empty() && results.front() == PlaceUpdate::kNoReply;
    for (std::size_t i = 0; i < places.size(); ++i) {
        const bool good = results[i] == PlaceUpdate::kSaved || results[i] == PlaceUpdate::kOlder;
        const bool asked = results[i] != PlaceUpdate::kNotAsked || unreachable;
        if (good) m_notUpdated.erase(places[i]);
        if (!good && asked) m_notUpdated.insert(places[i]);
        if (results[i] == PlaceUpdate::kUnknown || results[i] == PlaceUpdate::kEmpty) m_notServed.insert(places[i]);
        if (good) m_notServed.erase(places[i]);
    }
}

void CWeatherScreen::ChangePlace(std::size_t slot) {
    const auto title =
        FillText(m_ports.resources.Text(kTextWeatherPlace), {FormatInteger(static_cast<std::int64_t>(slot) + 1)});
    const auto city = m_ports.chooseCity(window(), ToQString(title), m_places[slot]);
    if (!city) return;
    m_choices.SavePlace(slot, *city);
    m_choices.SaveShownPlace(slot);
    m_day = 0;
    Refresh();
}

void CWeatherScreen::SelectPlace(std::size_t slot) {
    m_choices.SaveShownPlace(slot);
    if (slot != m_shown) m_day = 0;
    Refresh();
}

void CWeatherScreen::SelectDay(std::size_t day) {
    m_day = day;
    ShowDays();
}

void CWeatherScreen::SetDayByDay(bool on) {
    m_choices.SaveDayByDay(on);
    Refresh();
    setFocus();
    if (on) ShowTip();
}

void CWeatherScreen::StepDay(int by) {
    const auto days = static_cast<int>(m_forecast.DaysToShow().size());
    const int day = static_cast<int>(m_day) + by;
    if (day >= 0 && day < days) SelectDay(static_cast<std::size_t>(day));
}

void CWeatherScreen::StepPlace(int by) {
    constexpr int kCount = static_cast<int>(kWeatherPlaceCount);
    SelectPlace(static_cast<std::size_t>((static_cast<int>(m_shown) + by + kCount) % kCount));
}

void CWeatherScreen::keyPressEvent(QKeyEvent* event) {
    switch (event->key()) {
        case Qt::Key_Left:
        case Qt::Key_Right: {
            const int by = event->key() == Qt::Key_Left ? -1 : 1;
            m_dayByDay ? StepDay(by) : StepPlace(by);
            break;
        }
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

/// A swipe goes to the next day, or to the next place in the overview; a tap on the picture chooses its day.
void CWeatherScreen::mouseReleaseEvent(QMouseEvent* event) {
    const auto pressed = std::exchange(m_pressed, std::nullopt);
    if (event->button() != Qt::LeftButton || !pressed) return;
    const QPoint way = event->position().toPoint() - *pressed;
    if (std::abs(way.x()) >= kSwipe && std::abs(way.x()) > 2 * std::abs(way.y())) {
        const int by = way.x() < 0 ? 1 : -1;
        m_dayByDay ? StepDay(by) : StepPlace(by);
    } else if (m_chart->isVisible()) {
        if (const auto day = m_chart->DayAt(m_chart->mapFrom(this, *pressed))) SelectDay(*day);
    }
}

std::optional<std::size_t> CWeatherScreen::SlotOf(const QObject* button) const {
    const auto found = std::find(m_placeButtons.begin(), m_placeButtons.end(), button);
    if (found == m_placeButtons.end()) return std::nullopt;
    return static_cast<std::size_t>(found - m_placeButtons.begin());
}

/// A finger that rests on a place, or a right click, opens its menu.
bool CWeatherScreen::eventFilter(QObject* watched, QEvent* event) {
    const auto slot = SlotOf(watched);
    if (slot && event->type() == QEvent::MouseButtonPress) {
        m_held = *slot;
        m_longTap.start();
    } else if (slot && (event->type() == QEvent::MouseButtonRelease || event->type() == QEvent::Leave)) {
        m_longTap.stop();
    } else if (slot && event->type() == QEvent::ContextMenu) {
        m_longTap.stop();
        OpenMenu(*slot, static_cast<QContextMenuEvent*>(event)->globalPos());
        return true;
    }
    return CScreen::eventFilter(watched, event);
}

void CWeatherScreen::contextMenuEvent(QContextMenuEvent* event) {
    OpenMenu(m_shown, event->globalPos());
}

void CWeatherScreen::OpenMenu(std::size_t slot, const QPoint& globalPoint) {
    m_held = slot;
    m_commands.Find(kCommandWeatherDays)->setChecked(m_dayByDay);
    m_menu.popup(globalPoint);
}

}  // namespace rlx
