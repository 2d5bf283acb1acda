#include "clocks/ui/clocks_screen.h"

#include <QContextMenuEvent>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QPainter>

#include "base/number.h"
#include "clocks/text_ids.h"
#include "places/home_distance.h"
#include "places/text_ids.h"
#include "shell/command_ids.h"
#include "shell/fill_text.h"
#include "shell/setting_names.h"
#include "shell/text_ids.h"
#include "uikit/qt_text.h"

namespace rlx {

namespace {

constexpr int kLongTap = 600;      // milliseconds
constexpr int kTapTolerance = 12;  // pixels that a finger may wander

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
      m_picture(look, resources),
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
        m_picture.Forget();
        update();
    });
    Refresh();
}

void CClocksScreen::MakeMenu() {
    m_commands.Add(kCommandClockInformation, this, [this] { ShowInformation(m_focused); });
    m_commands.Add(kCommandClockCity, this, [this] { ChangeCity(m_focused); });
    m_commands.Add(kCommandClockAsHome, this, [this] { UseAsHome(m_focused); });
    m_commands.Add(kCommandClockReminder, this, [this] {
        if (m_openReminders) m_openReminders(m_clocks.readings[m_focused].cityIndex);
    });
    m_menu.setObjectName("clockMenu");
    if (const auto entries = m_resources.Menu(kMenuClock)) FillMenu(m_menu, *entries, m_commands);
}

void CClocksScreen::Refresh() {
    m_times.emplace(m_cities, m_clock, m_resources, LoadClockSettings(m_settings));
    const bool twelve = m_settings.ReadDwordOr(keys::kRoamlytix, names::kTwelveHour, 0) == 1;
    m_clocks.form = twelve ? ClockForm::kTwelve : ClockForm::kTwentyFour;
    Tick();
}

void CClocksScreen::Tick() {
    m_clocks.readings = m_times->AllClocks(m_clock.Now());
    update();
}

void CClocksScreen::Entered() {
    if (m_settings.ReadDwordOr(keys::kRoamlytix, names::kClocksTip, 0) != 0) return;
    m_settings.WriteDword(RootOf(keys::kRoamlytix), keys::kRoamlytix, names::kClocksTip, 1);
    m_boxes.Show(
        {m_resources.Text(kTextTip), m_resources.Text(kTextClocksTip), BoxIcon::kInformation, BoxButtons::kOk});
}

void CClocksScreen::SetWaitingReminders(int count) {
    if (std::exchange(m_clocks.waitingReminders, count) == count) return;
    const std::u16string text =
        FillText(m_resources.Text(kTextRemindersWait), {FormatInteger(m_clocks.waitingReminders)});
    setToolTip(count > 0 ? ToQString(text) : QString());
    update();
}

void CClocksScreen::ShowInformation(std::size_t clock) {
    const CitySunDetails details =
        SunDetailsOf(m_cities, *m_times, m_resources, m_clocks.readings[clock].cityIndex, m_clock.Now());
    if (m_boxes.Show(CityInformationBox(details, m_resources)) == BoxAnswer::kYes && m_showSunDetails)
        m_showSunDetails(details);
}

void CClocksScreen::ChangeCity(std::size_t clock) {
    const std::u16string title = clock == 0 ? m_resources.Text(kTextChooseHomeCity)
                                            : FillText(m_resources.Text(kTextChooseClockCity),
                                                       {FormatInteger(static_cast<std::int64_t>(clock))});
    const auto city = m_chooseCity(window(), ToQString(title), m_clocks.readings[clock].cityIndex);
    if (city) StoreCity(clock, *city);
}

/// The home city and the clock's city change places, so that neither is lost.
void CClocksScreen::UseAsHome(std::size_t clock) {
    if (clock == 0) return;
    const CityIndex home = m_clocks.readings[0].cityIndex;
    const CityIndex city = m_clocks.readings[clock].cityIndex;
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

void CClocksScreen::paintEvent(QPaintEvent* /*event*/) {
    QPainter painter(this);
    m_picture.Paint(painter, size(), m_layout, m_clocks);
}

void CClocksScreen::resizeEvent(QResizeEvent* /*event*/) {
    m_layout = LayOutClocks(rect());
}

void CClocksScreen::mousePressEvent(QMouseEvent* event) {
    if (event->button() != Qt::LeftButton) return;
    m_pressed = ClockAt(m_layout, event->position());
    m_pressedAt = event->position().toPoint();
    if (!m_pressed) return;
    Focus(*m_pressed, false);
    m_longTap.start();
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
    if (m_clocks.waitingReminders > 0 && m_openReminders && m_layout[0].BellTap().contains(event->position())) {
        m_openReminders(std::nullopt);
    } else {
        ShowInformation(*clock);
    }
}

void CClocksScreen::contextMenuEvent(QContextMenuEvent* event) {
    const auto clock =
        event->reason() == QContextMenuEvent::Keyboard ? std::optional(m_focused) : ClockAt(m_layout, event->pos());
    if (!clock) return;
    const bool keyboard = event->reason() == QContextMenuEvent::Keyboard;
    OpenMenu(*clock, keyboard ? mapToGlobal(m_layout[*clock].card.center().toPoint()) : event->globalPos());
}

void CClocksScreen::OpenMenu(std::size_t clock, const QPoint& globalPoint) {
    Focus(clock, m_clocks.focused.has_value());
    m_commands.Find(kCommandClockAsHome)->setEnabled(clock != 0);
    m_menu.popup(globalPoint);
}

void CClocksScreen::MoveFocus(int columns, int rows) {
    const auto next = ClockTowards(m_layout, m_focused, columns, rows);
    if (!next) return;
    Focus(*next, true);
    NameFocusedClock();
}

/// Shows it only to those who move by keyboard.
void CClocksScreen::Focus(std::size_t clock, bool show) {
    m_focused = clock;
    m_clocks.focused = show ? std::optional(clock) : std::nullopt;
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
    Focus(m_focused, event->reason() == Qt::TabFocusReason || event->reason() == Qt::BacktabFocusReason);
    NameFocusedClock();
}

void CClocksScreen::focusOutEvent(QFocusEvent* event) {
    CScreen::focusOutEvent(event);
    Focus(m_focused, false);
}

/// Screen readers hear the clock that the user moved to, and no ticks.
void CClocksScreen::NameFocusedClock() {
    const ClockTexts texts = TextsOf(m_clocks, m_focused, m_resources);
    QString description =
        texts.city + QStringLiteral(", ") + texts.time + texts.half + QStringLiteral(", ") + texts.date;
    const std::int64_t ahead = MinutesAhead(m_clocks.readings[0], m_clocks.readings[m_focused]);
    if (m_focused != 0) description += QStringLiteral(", ") + ToQString(DistanceText(ahead, m_resources));
    setAccessibleDescription(description);
}

}  // namespace rlx
