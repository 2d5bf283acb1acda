#include "map/ui/map_screen.h"

#include <QKeyEvent>
#include <QMenu>
#include <QMouseEvent>
#include <QPainter>
#include <algorithm>
#include <cmath>

#include "map/text_ids.h"
#include "shell/fill_text.h"
#include "shell/setting_names.h"
#include "shell/text_ids.h"
#include "uikit/qt_text.h"

namespace rlx {
namespace {

constexpr double kFinger = 14;  // pixels around a city that count as the city
constexpr double kSunRadius = 5;
constexpr int kSunRays = 8;
constexpr int kMarkFont = 10;  // pixels
constexpr QRgb kSunColour = 0xFFFFC83CU;
constexpr QRgb kSunEdge = 0xFF7A4E00U;

}  // namespace

CMapScreen::CMapScreen(CCityDatabase& cities, const IClock& clock, CRegistryStore& settings, const ITexts& texts,
                       IMessageBoxes& boxes, const CLook& look)
    : m_cities(cities),
      m_clock(clock),
      m_settings(settings),
      m_texts(texts),
      m_boxes(boxes),
      m_look(look),
      m_layer(look),
      m_places(cities),
      m_scrubber(new CTimeScrubber(look, this)),
      m_clockButton(new CMapClock(look, this)),
      m_spanButton(new QToolButton(this)),
      m_nowButton(new QToolButton(this)),
      m_panel(new CRiseSetPanel(look, texts, this)),
      m_timer([this] { emit SecondPassed(); }) {
    setObjectName("mapScreen");
    setFocusPolicy(Qt::StrongFocus);
    setAccessibleName(ToQString(texts.Text(kTextMapPicture)));
    MakeControls();
    connect(this, &CMapScreen::SecondPassed, this, &CMapScreen::TakeSecond, Qt::QueuedConnection);
    connect(&m_look, &CLook::Changed, this, [this] {
        m_layer.Forget();
        RedrawNight();
    });
    m_selected = LoadClockSettings(settings).home;
    Refresh();
}

void CMapScreen::MakeControls() {
    m_scrubber->setObjectName("mapScrubber");
    m_scrubber->setAccessibleName(ToQString(m_texts.Text(kTextMapScrubber)));
    connect(m_scrubber, &CTimeScrubber::Moved, this, &CMapScreen::MoveTo);
    m_clockButton->setObjectName("mapClock");
    m_clockButton->setAccessibleName(ToQString(m_texts.Text(kTextMapClock)));
    connect(m_clockButton, &QAbstractButton::clicked, this, &CMapScreen::ChooseClock);
    m_spanButton->setObjectName("mapSpan");
    m_spanButton->setText(ToQString(m_texts.Text(kTextMapYear)));
    connect(m_spanButton, &QToolButton::clicked, this, &CMapScreen::ToggleSpan);
    m_nowButton->setObjectName("mapNow");
    m_nowButton->setText(ToQString(m_texts.Text(kTextMapNow)));
    connect(m_nowButton, &QToolButton::clicked, this, &CMapScreen::ReturnToNow);
}

void CMapScreen::Refresh() {
    m_choices = LoadClockSettings(m_settings);
    m_times.emplace(m_cities, m_clock, m_texts, m_choices);
    const bool twelve = m_settings.ReadDwordOr(keys::kRoamlytix, names::kTwelveHour, 0) == 1;
    m_form = twelve ? ClockForm::kTwelve : ClockForm::kTwentyFour;
    m_showCities = m_settings.ReadDwordOr(keys::kMap, names::kShowCities, 1) == 1;
    m_mapClock = std::min<std::size_t>(m_settings.ReadDwordOr(keys::kMap, names::kMapClock, 0), 4);
    m_places.Forget();
    if (!m_cities.Record(m_selected)) m_selected = m_choices.home;
    PrepareMarks();
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
    m_scrubber->SetTime(shown);
    m_nowButton->setEnabled(m_shift != 0);
    const ClockReading reading = m_times->AllClocks(shown)[m_mapClock];
    const ClockTextPieces time =
        ClockText(static_cast<int>(reading.hour), reading.minute, reading.second, m_form, m_texts);
    const Date date{reading.year, reading.month, reading.day};
    m_clockButton->Show(reading, ToQString(time.time + time.half), ToQString(CityDateText(date, false, m_texts)));
    const CityRecord city = m_cities.Record(m_selected).value_or(CityRecord());
    const CitySun day = CitySunToday(city, *m_times, shown);
    const CitySun next = CitySunOn(city, AddDays(day.date, 1));
    const bool today = shown.date == m_clock.Now().date;
    const auto name = [&](const CitySun& sun, TextId word) {
        return ToQString(today ? m_texts.Text(word) : CityDateText(sun.date, false, m_texts));
    };
    m_panel->Show(ToQString(city.name), {name(day, kTextMapToday), SunTextsOf(day.sun, m_form, m_texts)},
                  {name(next, kTextMapTomorrow), SunTextsOf(next.sun, m_form, m_texts)});
}

void CMapScreen::MoveTo(const DateTime& time) {
    m_shift = SecondNumber(time) - SecondNumber(m_clock.Now());
    RedrawNight();
}

void CMapScreen::ReturnToNow() {
    m_shift = 0;
    RedrawNight();
}

/// The button names what it leads to.
void CMapScreen::ToggleSpan() {
    const bool year = m_scrubber->Shown() == CTimeScrubber::Span::kDay;
    m_scrubber->SetSpan(year ? CTimeScrubber::Span::kYear : CTimeScrubber::Span::kDay);
    m_spanButton->setText(ToQString(m_texts.Text(year ? kTextMapDay : kTextMapYear)));
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
    PrepareMarks();
    ShowTexts();
    update();
}

void CMapScreen::SelectNeighbour(int by) {
    const std::vector<CityIndex> cities = ClockCities();
    const auto found = std::find(cities.begin(), cities.end(), m_selected);
    const auto count = static_cast<std::ptrdiff_t>(cities.size());
    const auto at = found == cities.end() ? std::ptrdiff_t{0} : (found - cities.begin() + by + count) % count;
    Select(cities[static_cast<std::size_t>(at)]);
}

/// The cities that are marked come before all others, so that a square can be hit in a crowded place.
std::optional<CityIndex> CMapScreen::CityAt(const QPointF& point) {
    if (!m_layout.picture.contains(point.toPoint())) return std::nullopt;
    std::optional<CityIndex> nearest;
    double best = kFinger;
    for (const CityMark& mark : m_marks) {
        const QPointF way = mark.at - point;
        const double distance = std::hypot(way.x(), way.y());
        if (distance >= best && !mark.label.contains(point)) continue;
        best = std::min(best, distance);
        nearest = mark.city;
    }
    if (nearest) return nearest;
    const MapGeometry logical{m_layout.picture.width(), m_layout.picture.height(), kMapMargin};
    const QPoint inside = (point - m_layout.picture.topLeft()).toPoint();
    return m_places.Nearest({inside.x(), inside.y()}, logical, kFinger);
}

QPointF CMapScreen::PlaceOf(const EarthPoint& point) const {
    const MapGeometry logical{m_layout.picture.width(), m_layout.picture.height(), kMapMargin};
    const MapPixel pixel = PixelOf(point, logical);
    return QPointF(m_layout.picture.topLeft()) + QPointF(pixel.x + 0.5, pixel.y + 0.5);
}

void CMapScreen::PrepareMarks() {
    m_marks.clear();
    if (m_layout.picture.isEmpty()) return;
    // The selected city first: its name must find a place.
    std::vector<CityIndex> cities{m_selected};
    if (m_showCities) {
        for (const CityIndex city : ClockCities()) {
            if (std::find(cities.begin(), cities.end(), city) == cities.end()) cities.push_back(city);
        }
    }
    for (const CityIndex index : cities) {
        const auto city = m_cities.Record(index);
        if (city) m_marks.push_back({index, ToQString(city->name), PlaceOf(PointOfCity(*city))});
    }
    QFont small = font();
    small.setPixelSize(kMarkFont);
    PlaceLabels(m_marks, m_layout.picture, QFontMetricsF(small));
}

void CMapScreen::PaintMarks(QPainter& painter) const {
    QFont small = font();
    small.setPixelSize(kMarkFont);
    painter.setFont(small);
    for (const CityMark& mark : m_marks) {
        const bool selected = mark.city == m_selected;
        const QColor ground = selected ? m_look.Accent() : m_look.Card();
        const QColor text = selected ? m_look.AccentText() : m_look.Colour(SkinKey::kMapCNC);
        painter.setPen(Qt::NoPen);
        painter.setBrush(ground);
        painter.drawRoundedRect(mark.label, 3, 3);
        const QRectF square = QRectF(mark.at, QSizeF()).adjusted(-kMarkRadius, -kMarkRadius, kMarkRadius, kMarkRadius);
        painter.setPen(QPen(m_look.Panel(), 1));
        painter.setBrush(selected ? m_look.Accent() : m_look.Colour(SkinKey::kMapCNC));
        painter.drawRect(square);
        painter.setPen(text);
        painter.drawText(mark.label, Qt::AlignCenter, mark.name);
    }
}

/// A sun looks like one whatever the skin, and must be seen on sea, land and ice.
void CMapScreen::PaintSun(QPainter& painter) const {
    const QPointF at = PlaceOf(m_sun);
    for (const auto& [colour, width] : {std::pair(kSunEdge, 3.4), std::pair(kSunColour, 1.6)}) {
        painter.setPen(QPen(QColor::fromRgb(colour), width, Qt::SolidLine, Qt::RoundCap));
        painter.setBrush(QColor::fromRgb(colour));
        for (int ray = 0; ray < kSunRays; ++ray) {
            const double angle = ray * 2 * M_PI / kSunRays;
            const QPointF way(std::cos(angle), std::sin(angle));
            painter.drawLine(at + way * (kSunRadius + 1.5), at + way * (kSunRadius + 3.5));
        }
        painter.drawEllipse(at, kSunRadius - 1, kSunRadius - 1);
    }
}

void CMapScreen::PaintMissingImage(QPainter& painter) const {
    painter.setPen(m_look.PanelText());
    painter.drawText(m_layout.picture.adjusted(8, 8, -8, -8), Qt::AlignCenter | Qt::TextWordWrap,
                     accessibleDescription());
}

void CMapScreen::paintEvent(QPaintEvent* /*event*/) {
    QPainter painter(this);
    m_look.PaintBackground(painter, rect(), LookPicture::kMap);
    if (std::exchange(m_redraw, false)) {
        const double ratio = devicePixelRatioF();
        m_layer.Resize((QSizeF(m_layout.picture.size()) * ratio).toSize(),
                       static_cast<int>(std::lround(kMapMargin * ratio)));
        const DateTime shown = Shown();
        const ClockOffset reference = m_times->Reference(shown);
        const SolarInstant instant = SolarInstantAt(UniversalTime(shown, reference.hours, reference.minutes));
        m_layer.Shade(instant);
        const std::u16string missing =
            FillText(m_texts.Text(kTextMapImageMissing), {m_look.Skin().Name(SkinKey::kMapMI)});
        setAccessibleDescription(m_layer.HasImage() ? QString() : ToQString(missing));
        m_sun = SubsolarPoint(instant);
    }
    painter.drawImage(m_layout.picture, m_layer.Picture());
    painter.setRenderHint(QPainter::Antialiasing);
    if (!m_layer.HasImage()) PaintMissingImage(painter);
    PaintSun(painter);
    PaintMarks(painter);
    if (!m_showFocus) return;
    painter.setPen(QPen(m_look.Accent(), 2));
    painter.setBrush(Qt::NoBrush);
    painter.drawRect(QRectF(m_layout.picture).adjusted(1, 1, -1, -1));
}

void CMapScreen::resizeEvent(QResizeEvent* /*event*/) {
    m_layout = LayOutMap(rect());
    m_scrubber->setGeometry(m_layout.scrubber);
    m_clockButton->setGeometry(m_layout.clock);
    m_spanButton->setGeometry(m_layout.span);
    m_nowButton->setGeometry(m_layout.now);
    m_panel->setGeometry(m_layout.panel);
    PrepareMarks();
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
    const auto city = CityAt(event->position());
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
            m_scrubber->Step(-1);
            break;
        case Qt::Key_Right:
            m_scrubber->Step(1);
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
