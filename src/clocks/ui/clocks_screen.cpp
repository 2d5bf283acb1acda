#include "clocks/ui/clocks_screen.h"

#include <QAccessible>
#include <QContextMenuEvent>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QPainter>
#include <algorithm>
#include <cmath>

#include "base/number.h"
#include "base/text.h"
#include "clocks/text_ids.h"
#include "places/home_distance.h"
#include "places/text_ids.h"
#include "shell/command_ids.h"
#include "shell/fill_text.h"
#include "shell/setting_names.h"
#include "shell/text_ids.h"
#include "uikit/icons.h"
#include "uikit/qt_text.h"

namespace rlx {

namespace {

constexpr int kLongTap = 600;      // milliseconds
constexpr int kTapTolerance = 12;  // pixels that a finger may wander
constexpr double kCardRadius = 12;

}  // namespace

CClocksScreen::CClocksScreen(CCityDatabase& cities, const IClock& clock, CRegistryStore& settings,
                             const CResources& resources, IMessageBoxes& boxes, const CLook& look,
                             CityChooser chooseCity)
    : m_cities(cities),
      m_clock(clock),
      m_settings(settings),
      m_resources(resources),
      m_boxes(boxes),
      m_look(look),
      m_chooseCity(std::move(chooseCity)),
      m_menu(this) {
    setObjectName("clocksScreen");
    setFocusPolicy(Qt::StrongFocus);
    MakeMenu();
    m_longTap.setSingleShot(true);
    m_longTap.setInterval(kLongTap);
    connect(&m_longTap, &QTimer::timeout, this, [this] {
        if (const auto held = std::exchange(m_pressed, std::nullopt)) OpenMenu(*held, mapToGlobal(m_pressedAt));
    });
    connect(&m_look, &CLook::Changed, this, [this] {
        m_still.Forget();
        update();
    });
    Refresh();
}

void CClocksScreen::MakeMenu() {
    m_commands.Add(kCommandClockInformation, this, [this] { ShowInformation(m_focused); });
    m_commands.Add(kCommandClockCity, this, [this] { ChangeCity(m_focused); });
    m_commands.Add(kCommandClockAsHome, this, [this] { UseAsHome(m_focused); });
    m_commands.Add(kCommandClockReminder, this, [this] {
        if (m_openReminders) m_openReminders(m_clocks[m_focused].cityIndex);
    });
    m_menu.setObjectName("clockMenu");
    if (const auto entries = m_resources.Menu(kMenuClock)) FillMenu(m_menu, *entries, m_commands);
}

void CClocksScreen::Refresh() {
    m_times.emplace(m_cities, m_clock, m_resources, LoadClockSettings(m_settings));
    const bool twelve = m_settings.ReadDwordOr(keys::kRoamlytix, names::kTwelveHour, 0) == 1;
    m_form = twelve ? ClockForm::kTwelve : ClockForm::kTwentyFour;
    Tick();
}

void CClocksScreen::Tick() {
    m_clocks = m_times->AllClocks(m_clock.Now());
    update();
}

void CClocksScreen::Entered() {
    if (m_settings.ReadDwordOr(keys::kRoamlytix, names::kClocksTip, 0) != 0) return;
    m_settings.WriteDword(RootOf(keys::kRoamlytix), keys::kRoamlytix, names::kClocksTip, 1);
    m_boxes.Show(
        {m_resources.Text(kTextTip), m_resources.Text(kTextClocksTip), BoxIcon::kInformation, BoxButtons::kOk});
}

void CClocksScreen::SetWaitingReminders(int count) {
    if (std::exchange(m_waitingReminders, count) == count) return;
    const std::u16string text = FillText(m_resources.Text(kTextRemindersWait), {FormatInteger(m_waitingReminders)});
    setToolTip(count > 0 ? ToQString(text) : QString());
    update();
}

void CClocksScreen::ShowInformation(std::size_t clock) {
    const CitySunDetails details =
        SunDetailsOf(m_cities, *m_times, m_resources, m_clocks[clock].cityIndex, m_clock.Now());
    if (m_boxes.Show(CityInformationBox(details, m_resources)) == BoxAnswer::kYes && m_showSunDetails)
        m_showSunDetails(details);
}

void CClocksScreen::ChangeCity(std::size_t clock) {
    const std::u16string title = clock == 0 ? m_resources.Text(kTextChooseHomeCity)
                                            : FillText(m_resources.Text(kTextChooseClockCity),
                                                       {FormatInteger(static_cast<std::int64_t>(clock))});
    const auto city = m_chooseCity(window(), ToQString(title), m_clocks[clock].cityIndex);
    if (city) StoreCity(clock, *city);
}

/// The home city and the clock's city change places, so that neither is lost.
void CClocksScreen::UseAsHome(std::size_t clock) {
    if (clock == 0) return;
    const CityIndex home = m_clocks[0].cityIndex;
    const CityIndex city = m_clocks[clock].cityIndex;
    StoreCity(clock, home);
    StoreCity(0, city);
}

void CClocksScreen::StoreCity(std::size_t clock, CityIndex city) {
    const std::u16string_view value = clock == 0 ? names::kHomeClock : names::kClocks[clock - 1];
    m_settings.WriteDword(RootOf(keys::kWorldClock), keys::kWorldClock, value, city);
    if (clock == 0) {
        m_settings.WriteString(RootOf(keys::kRoamlytix), keys::kRoamlytix, names::kHomeName, m_cities.GetName(city));
    }
    Refresh();
    NameFocusedClock();
    emit CitiesChanged();
}

ClockTexts CClocksScreen::TextsOf(std::size_t clock) const {
    const ClockReading& reading = m_clocks[clock];
    const ClockTextPieces time =
        ClockText(static_cast<int>(reading.hour), reading.minute, reading.second, m_form, m_resources);
    ClockTexts texts{
        ToQString(reading.name), ToQString(time.time), ToQString(time.half), ToQString(Trim(reading.dateText)), {}, {}};
    if (clock == 0) return texts;
    const std::u16string note = HomeNote(m_clocks[0], reading, m_resources);
    texts.note = ToQString(note.empty() ? m_resources.Text(kTextSameAsHome) : note);
    texts.shortNote = ToQString(ShortDistance(MinutesAhead(m_clocks[0], reading)));
    return texts;
}

ClockColours CClocksScreen::ColoursOf(std::size_t clock) const {
    const auto colour = [this](SkinKey key) { return m_look.Colour(key); };
    const bool home = clock == 0;
    ClockColours colours;
    colours.digital = colour(home ? SkinKey::kClocksCMDC : SkinKey::kClocksCODC);
    colours.date = colour(home ? SkinKey::kClocksCMD : SkinKey::kClocksCOD);
    colours.city = colour(home ? SkinKey::kClocksCMCN : SkinKey::kClocksCOCN);
    colours.hands = colour(home ? SkinKey::kClocksCMAC : SkinKey::kClocksCOAC);
    colours.second = colour(SkinKey::kClocksCMSC);
    colours.face = m_look.Panel();
    return colours;
}

CClocksScreen::Still CClocksScreen::StillNow() const {
    Still still;
    for (std::size_t clock = 0; clock < m_clocks.size(); ++clock)
        still.days[clock] = IsDayFace(static_cast<int>(m_clocks[clock].hour));
    if (m_showFocus) still.focused = m_focused;
    return still;
}

/// The ground, the cards and the faces: the most of the picture and of the work, and the same from second to second.
void CClocksScreen::PaintStill(QPainter& painter, const Still& still) const {
    m_look.PaintBackground(painter, rect(), LookPicture::kClocks);
    painter.setRenderHint(QPainter::Antialiasing);
    for (std::size_t clock = 0; clock < m_layout.size(); ++clock) {
        painter.setPen(clock == still.focused ? QPen(m_look.Accent(), 2) : QPen(Qt::NoPen));
        painter.setBrush(m_look.Card());
        painter.drawRoundedRect(m_layout[clock].card, kCardRadius, kCardRadius);
        PaintClockFace(painter, m_layout[clock].face, still.days[clock], ColoursOf(clock));
    }
}

void CClocksScreen::PaintClock(QPainter& painter, std::size_t clock) const {
    const ClockCell& cell = m_layout[clock];
    const ClockReading& reading = m_clocks[clock];
    const ClockColours colours = ColoursOf(clock);
    const int hour = static_cast<int>(reading.hour);
    PaintClockHands(painter, cell.face, HandsAt(hour, reading.minute, reading.second), IsDayFace(hour), colours);
    PaintClockTexts(painter, cell.texts, TextsOf(clock), colours, cell.centred ? Qt::AlignHCenter : Qt::AlignLeft);
}

/// In the skin's colour of the home clock's date, as quiet as that.
void CClocksScreen::PaintBell(QPainter& painter) const {
    if (m_waitingReminders == 0) return;
    const QRectF bell = m_layout[0].bell;
    const QColor colour = m_look.Colour(SkinKey::kClocksCMD);
    const int size = static_cast<int>(bell.height());
    painter.drawPixmap(bell.topLeft(), TintedPixmap(QStringLiteral("reminder"), colour, size, devicePixelRatioF()));
    painter.setPen(colour);
    QFont font = painter.font();
    font.setPixelSize(std::max(9, static_cast<int>(bell.height() * 0.72)));
    font.setBold(true);
    painter.setFont(font);
    painter.drawText(bell.adjusted(size, 0, 0, 0), Qt::AlignVCenter | Qt::AlignHCenter,
                     QString::number(m_waitingReminders));
}

void CClocksScreen::paintEvent(QPaintEvent* /*event*/) {
    QPainter painter(this);
    const Still still = StillNow();
    painter.drawPixmap(0, 0,
                       m_still.Of(still, size(), devicePixelRatioF(), [&](QPainter& p) { PaintStill(p, still); }));
    painter.setRenderHint(QPainter::Antialiasing);
    for (std::size_t clock = 0; clock < m_clocks.size(); ++clock)
        PaintClock(painter, clock);
    PaintBell(painter);
}

void CClocksScreen::resizeEvent(QResizeEvent* /*event*/) {
    m_layout = LayOutClocks(rect());
}

std::optional<std::size_t> CClocksScreen::ClockAt(const QPointF& point) const {
    const auto found = std::find_if(m_layout.begin(), m_layout.end(),
                                    [&point](const ClockCell& cell) { return cell.card.contains(point); });
    if (found == m_layout.end()) return std::nullopt;
    return static_cast<std::size_t>(found - m_layout.begin());
}

void CClocksScreen::mousePressEvent(QMouseEvent* event) {
    if (event->button() != Qt::LeftButton) return;
    m_pressed = ClockAt(event->position());
    m_pressedAt = event->position().toPoint();
    if (!m_pressed) return;
    m_focused = *m_pressed;
    m_showFocus = false;
    m_longTap.start();
    update();
}

void CClocksScreen::mouseMoveEvent(QMouseEvent* event) {
    if ((event->position().toPoint() - m_pressedAt).manhattanLength() <= kTapTolerance) return;
    m_longTap.stop();
    m_pressed.reset();
}

void CClocksScreen::mouseReleaseEvent(QMouseEvent* event) {
    m_longTap.stop();
    const auto clock = std::exchange(m_pressed, std::nullopt);
    if (event->button() != Qt::LeftButton || !clock) return;
    if (m_waitingReminders > 0 && m_openReminders && m_layout[0].BellTap().contains(event->position())) {
        m_openReminders(std::nullopt);
    } else {
        ShowInformation(*clock);
    }
}

void CClocksScreen::contextMenuEvent(QContextMenuEvent* event) {
    const auto clock =
        event->reason() == QContextMenuEvent::Keyboard ? std::optional(m_focused) : ClockAt(event->pos());
    if (!clock) return;
    const bool keyboard = event->reason() == QContextMenuEvent::Keyboard;
    OpenMenu(*clock, keyboard ? mapToGlobal(m_layout[*clock].card.center().toPoint()) : event->globalPos());
}

void CClocksScreen::OpenMenu(std::size_t clock, const QPoint& globalPoint) {
    m_focused = clock;
    update();
    m_commands.Find(kCommandClockAsHome)->setEnabled(clock != 0);
    m_menu.popup(globalPoint);
}

/// Left and right, up and down by where the cards stand: the nearest card whose centre lies in that direction.
void CClocksScreen::MoveFocus(int columns, int rows) {
    const QPointF from = m_layout[m_focused].card.center();
    double best = 0;
    std::optional<std::size_t> nearest;
    for (std::size_t clock = 0; clock < m_layout.size(); ++clock) {
        const QPointF way = m_layout[clock].card.center() - from;
        const double along = way.x() * columns + way.y() * rows;
        if (along <= 1) continue;
        const double across = std::abs(way.x() * rows) + std::abs(way.y() * columns);
        const double distance = along + 2 * across;
        if (!nearest || distance < best) {
            nearest = clock;
            best = distance;
        }
    }
    if (!nearest) return;
    m_focused = *nearest;
    m_showFocus = true;
    NameFocusedClock();
    update();
}

void CClocksScreen::keyPressEvent(QKeyEvent* event) {
    switch (event->key()) {
        case Qt::Key_Left:
            MoveFocus(-1, 0);
            break;
        case Qt::Key_Right:
            MoveFocus(1, 0);
            break;
        case Qt::Key_Up:
            MoveFocus(0, -1);
            break;
        case Qt::Key_Down:
            MoveFocus(0, 1);
            break;
        case Qt::Key_Return:
        case Qt::Key_Enter:
        case Qt::Key_Space:
            ShowInformation(m_focused);
            break;
        case Qt::Key_F2:
            ChangeCity(m_focused);
            break;
        default:
            CScreen::keyPressEvent(event);
    }
}

void CClocksScreen::focusInEvent(QFocusEvent* event) {
    CScreen::focusInEvent(event);
    m_showFocus = event->reason() == Qt::TabFocusReason || event->reason() == Qt::BacktabFocusReason;
    NameFocusedClock();
    update();
}

void CClocksScreen::focusOutEvent(QFocusEvent* event) {
    CScreen::focusOutEvent(event);
    m_showFocus = false;
    update();
}

/// Screen readers hear the clock that the user moved to, and no ticks.
void CClocksScreen::NameFocusedClock() {
    const ClockTexts texts = TextsOf(m_focused);
    QString description =
        texts.city + QStringLiteral(", ") + texts.time + texts.half + QStringLiteral(", ") + texts.date;
    const std::int64_t ahead = MinutesAhead(m_clocks[0], m_clocks[m_focused]);
    if (m_focused != 0) description += QStringLiteral(", ") + ToQString(DistanceText(ahead, m_resources));
    setAccessibleDescription(description);
}

}  // namespace rlx
