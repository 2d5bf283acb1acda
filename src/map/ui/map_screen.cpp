#include "map/ui/map_screen.h"

#include <QKeyEvent>
#include <QMenu>
#include <QMouseEvent>
#include <QPainter>
#include <algorithm>

#include "map/text_ids.h"
#include "places/city_time.h"
#include "shell/fill_text.h"
#include "shell/setting_names.h"
#include "shell/text_ids.h"
#include "uikit/qt_text.h"

namespace rlx {

CMapScreen::CMapScreen(CCityDatabase& cities, const IClock& clock, CRegistryStore& settings, const ITexts& texts,
                       IMessageBoxes& boxes, const CLook& look)
    : m_cities(cities),
      m_clock(clock),
      m_settings(settings),
      m_texts(texts),
      m_boxes(boxes),
      m_look(look),
      m_view(cities, look),
      m_time(new CTimeControls(look, texts, this)),
      m_clockButton(new CMapClock(look, this)),
      m_panel(new CRiseSetPanel(look, texts, this)),
      m_timer([this] { emit SecondPassed(); }) {
    setObjectName("mapScreen");
    setFocusPolicy(Qt::StrongFocus);
    setAccessibleName(ToQString(texts.Text(kTextMapPicture)));
    m_clockButton->setObjectName("mapClock");
    m_clockButton->setAccessibleName(ToQString(texts.Text(kTextMapClock)));
    connect(m_clockButton, &QAbstractButton::clicked, this, &CMapScreen::ChooseClock);
    connect(m_time, &CTimeControls::Moved, this, &CMapScreen::MoveTo);
    connect(m_time, &CTimeControls::Returned, this, &CMapScreen::ReturnToNow);
    connect(this, &CMapScreen::SecondPassed, this, &CMapScreen::TakeSecond, Qt::QueuedConnection);
    connect(&m_look, &CLook::Changed, this, [this] {
        m_view.ForgetImage();
        RedrawNight();
    });
    m_selected = LoadClockSettings(settings).home;
    Refresh();
}

void CMapScreen::Refresh() {
    m_choices = LoadClockSettings(m_settings);
    m_times.emplace(m_cities, m_clock, m_texts, m_choices);
    const bool twelve = m_settings.ReadDwordOr(keys::kRoamlytix, names::kTwelveHour, 0) == 1;
    m_form = twelve ? ClockForm::kTwelve : ClockForm::kTwentyFour;
    m_showCities = m_settings.ReadDwordOr(keys::kMap, names::kShowCities, 1) == 1;
    m_mapClock = std::min<std::size_t>(m_settings.ReadDwordOr(keys::kMap, names::kMapClock, 0), 4);
    m_view.ForgetCities();
    if (!m_cities.Record(m_selected)) m_selected = m_choices.home;
    MarkCities();
    RedrawNight();
}

void CMapScreen::Entered() {
    if (m_settings.ReadDwordOr(keys::kRoamlytix, names::kMapTip, 0) != 0) return;
    m_settings.WriteDword(RootOf(keys::kRoamlytix), keys::kRoamlytix, names::kMapTip, 1);
    m_boxes.Show({m_texts.Text(kTextTip), m_texts.Text(kTextMapTip), BoxIcon::kInformation, BoxButtons::kOk});
}

DateTime CMapScreen::Shown() const {
    return AddSeconds(m_clock.Now(), m_shift);
}

/// The second moves the clock only; the shadow follows once a minute.
void CMapScreen::TakeSecond() {
    if (m_timer.TakeMinute()) {
        RedrawNight();
    } else {
        ShowTexts();
    }
}

void CMapScreen::RedrawNight() {
    m_redraw = true;
    ShowTexts();
    update();
}

void CMapScreen::ShowTexts() {
    const DateTime shown = Shown();
    m_time->Show(shown, m_shift != 0);
    const ClockReading reading = m_times->AllClocks(shown)[m_mapClock];
    const ClockTextPieces time =
        ClockText(static_cast<int>(reading.hour), reading.minute, reading.second, m_form, m_texts);
    m_clockButton->Show(reading, ToQString(time.time + time.half),
                        ToQString(CityDateText({reading.year, reading.month, reading.day}, false, m_texts)));
    const CityRecord city = m_cities.Record(m_selected).value_or(CityRecord());
    const CitySun day = CitySunToday(city, *m_times, shown);
    m_panel->Show(ToQString(city.name), day, CitySunOn(city, AddDays(day.date, 1)),
                  {shown.date == m_clock.Now().date, m_form});
}

void CMapScreen::MoveTo(const DateTime& time) {
    m_shift = SecondNumber(time) - SecondNumber(m_clock.Now());
    RedrawNight();
}

void CMapScreen::ReturnToNow() {
    m_shift = 0;
    RedrawNight();
}

std::vector<CityIndex> CMapScreen::ClockCities() const {
    std::vector<CityIndex> cities{m_choices.home};
    cities.insert(cities.end(), m_choices.clocks.begin(), m_choices.clocks.end());
    return cities;
}

void CMapScreen::ChooseClock() {
    QMenu menu(this);
    menu.setObjectName("mapClockMenu");
    const std::vector<CityIndex> cities = ClockCities();
    for (std::size_t i = 0; i < cities.size(); ++i) {
        QAction* action = menu.addAction(ToQString(m_cities.GetName(cities[i])).replace('&', "&&"));
        action->setCheckable(true);
        action->setChecked(i == m_mapClock);
        connect(action, &QAction::triggered, this, [this, i] {
            m_settings.WriteDword(RootOf(keys::kMap), keys::kMap, names::kMapClock, static_cast<std::uint32_t>(i));
            m_mapClock = i;
            ShowTexts();
        });
    }
    menu.exec(m_clockButton->mapToGlobal(QPoint(0, m_clockButton->height())));
}

void CMapScreen::Select(CityIndex city) {
    m_selected = city;
    MarkCities();
    ShowTexts();
    m_still.Forget();
    update();
}

void CMapScreen::SelectNeighbour(int by) {
    const std::vector<CityIndex> cities = ClockCities();
    const auto found = std::find(cities.begin(), cities.end(), m_selected);
    const auto count = static_cast<std::ptrdiff_t>(cities.size());
    const auto at = found == cities.end() ? std::ptrdiff_t{0} : (found - cities.begin() + by + count) % count;
    Select(cities[static_cast<std::size_t>(at)]);
}

/// The selected city first.
void CMapScreen::MarkCities() {
    std::vector<CityIndex> cities{m_selected};
    if (m_showCities) {
        for (const CityIndex city : ClockCities()) {
            if (std::find(cities.begin(), cities.end(), city) == cities.end()) cities.push_back(city);
        }
    }
    m_view.Mark(cities);
}

void CMapScreen::DrawNight() {
    const DateTime shown = Shown();
    const ClockOffset reference = m_times->Reference(shown);
    m_view.Draw(SolarInstantAt(UniversalTime(shown, reference.hours, reference.minutes)), devicePixelRatioF());
    const std::u16string missing = FillText(m_texts.Text(kTextMapImageMissing), {m_look.Skin().Name(SkinKey::kMapMI)});
    setAccessibleDescription(m_view.HasImage() ? QString() : ToQString(missing));
}

/// Ground, map, shadow and marks: the same from second to second.
void CMapScreen::PaintStill(QPainter& painter) {
    m_look.PaintBackground(painter, rect(), LookPicture::kMap);
    m_view.Paint(painter, accessibleDescription());
    if (!m_showFocus) return;
    // Two lines: one of them is seen on day, night and ice.
    painter.setBrush(Qt::NoBrush);
    for (const auto& [colour, width] : {std::pair(m_look.PanelText(), 5), std::pair(m_look.Panel(), 2)}) {
        painter.setPen(QPen(colour, width));
        painter.drawRect(QRectF(m_layout.picture).adjusted(2.5, 2.5, -2.5, -2.5));
    }
}

void CMapScreen::paintEvent(QPaintEvent* /*event*/) {
    if (std::exchange(m_redraw, false)) {
        DrawNight();
        m_still.Forget();
    }
    QPainter(this).drawPixmap(
        0, 0, m_still.Of(m_showFocus, size(), devicePixelRatioF(), [this](QPainter& painter) { PaintStill(painter); }));
}

void CMapScreen::resizeEvent(QResizeEvent* /*event*/) {
    m_layout = LayOutMap(rect());
    m_time->Place(m_layout);
    m_clockButton->setGeometry(m_layout.clock);
    m_panel->setGeometry(m_layout.panel);
    m_view.SetArea(m_layout.picture, font());
    m_redraw = true;
}

void CMapScreen::showEvent(QShowEvent* event) {
    CScreen::showEvent(event);
    m_timer.SetVisible(true);
    m_timer.TakeMinute();  // drawn now, so not once more with the first second
    RedrawNight();
}

void CMapScreen::hideEvent(QHideEvent* event) {
    CScreen::hideEvent(event);
    m_timer.SetVisible(false);
}

void CMapScreen::mousePressEvent(QMouseEvent* event) {
    if (event->button() != Qt::LeftButton) return;
    const auto city = m_view.CityAt(event->position());
    if (!city) return;
    if (*city != m_selected) {
        Select(*city);
    } else if (m_showInformation) {
        m_showInformation(*city);
    }
}

void CMapScreen::focusInEvent(QFocusEvent* event) {
    CScreen::focusInEvent(event);
    m_showFocus = event->reason() == Qt::TabFocusReason || event->reason() == Qt::BacktabFocusReason;
    update();
}

void CMapScreen::focusOutEvent(QFocusEvent* event) {
    CScreen::focusOutEvent(event);
    m_showFocus = false;
    update();
}

void CMapScreen::keyPressEvent(QKeyEvent* event) {
    switch (event->key()) {
        case Qt::Key_Left:
            m_time->Step(-1);
            break;
        case Qt::Key_Right:
            m_time->Step(1);
            break;
        case Qt::Key_Up:
            SelectNeighbour(-1);
            break;
        case Qt::Key_Down:
            SelectNeighbour(1);
            break;
        case Qt::Key_Home:
            ReturnToNow();
            break;
        case Qt::Key_Return:
        case Qt::Key_Enter:
            if (m_showInformation) m_showInformation(m_selected);
            break;
        default:
            CScreen::keyPressEvent(event);
    }
}

}  // namespace rlx
