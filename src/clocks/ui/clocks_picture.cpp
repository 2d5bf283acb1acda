#include "clocks/ui/clocks_picture.h"

#include <algorithm>

#include "base/text.h"
#include "clocks/text_ids.h"
#include "places/home_distance.h"
#include "places/text_ids.h"
#include "shell/text_ids.h"
#include "uikit/icons.h"
#include "uikit/qt_text.h"

namespace rlx {

namespace {

constexpr double kCardRadius = 12;
constexpr int kSmallestNumber = 9;  // pixels
constexpr double kNumberToBell = 0.72;

bool IsDay(const ClockReading& reading) {
    return IsDayFace(static_cast<int>(reading.hour));
}

}  // namespace

ClockTexts TextsOf(const ShownClocks& clocks, std::size_t clock, const ITexts& texts) {
    const ClockReading& reading = clocks.readings[clock];
    const ClockTextPieces time =
        ClockText(static_cast<int>(reading.hour), reading.minute, reading.second, clocks.form, texts);
    ClockTexts shown{
        ToQString(reading.name), ToQString(time.time), ToQString(time.half), ToQString(Trim(reading.dateText)), {}, {}};
    if (clock == 0) return shown;
    const ClockReading& home = clocks.readings[0];
    const std::u16string note = HomeNote(home, reading, texts);
    shown.note = ToQString(note.empty() ? texts.Text(kTextSameAsHome) : note);
    shown.shortNote = ToQString(ShortDistance(MinutesAhead(home, reading)));
    return shown;
}

void CClocksPicture::Paint(QPainter& painter, const QSize& size, const ClocksLayout& layout,
                           const ShownClocks& clocks) {
    Still still{{}, clocks.focused};
    std::transform(clocks.readings.begin(), clocks.readings.end(), still.days.begin(), IsDay);
    painter.drawPixmap(0, 0, m_still.Of(still, size, painter.device()->devicePixelRatioF(), [&](QPainter& p) {
        PaintStill(p, size, layout, still);
    }));
    painter.setRenderHint(QPainter::Antialiasing);
    for (std::size_t clock = 0; clock < layout.size(); ++clock)
        PaintClock(painter, layout[clock], clocks, clock);
    PaintBell(painter, layout[0].bell, clocks.waitingReminders);
}

void CClocksPicture::PaintStill(QPainter& painter, const QSize& size, const ClocksLayout& layout,
                                const Still& still) const {
    m_look.PaintBackground(painter, QRect({}, size), LookPicture::kClocks);
    painter.setRenderHint(QPainter::Antialiasing);
    for (std::size_t clock = 0; clock < layout.size(); ++clock) {
        painter.setPen(clock == still.focused ? QPen(m_look.Accent(), 2) : QPen(Qt::NoPen));
        painter.setBrush(m_look.Card());
        painter.drawRoundedRect(layout[clock].card, kCardRadius, kCardRadius);
        PaintClockFace(painter, layout[clock].face, still.days[clock], ColoursOf(clock));
    }
}

void CClocksPicture::PaintClock(QPainter& painter, const ClockCell& cell, const ShownClocks& clocks,
                                std::size_t clock) const {
    const ClockReading& reading = clocks.readings[clock];
    const ClockColours colours = ColoursOf(clock);
    const ClockHands hands = HandsAt(static_cast<int>(reading.hour), reading.minute, reading.second);
    PaintClockHands(painter, cell.face, hands, IsDay(reading), colours);
    PaintClockTexts(painter, cell.texts, TextsOf(clocks, clock, m_texts), colours,
                    cell.centred ? Qt::AlignHCenter : Qt::AlignLeft);
}

/// In the skin's colour of the home clock's date, as quiet as that.
void CClocksPicture::PaintBell(QPainter& painter, const QRectF& bell, int waitingReminders) const {
    if (waitingReminders == 0) return;
    const QColor colour = m_look.Colour(SkinKey::kClocksCMD);
    const int size = static_cast<int>(bell.height());
    const qreal ratio = painter.device()->devicePixelRatioF();
    painter.drawPixmap(bell.topLeft(), TintedPixmap(QStringLiteral("reminder"), colour, size, ratio));
    painter.setPen(colour);
    QFont font = painter.font();
    font.setPixelSize(std::max(kSmallestNumber, static_cast<int>(bell.height() * kNumberToBell)));
    font.setBold(true);
    painter.setFont(font);
    painter.drawText(bell.adjusted(size, 0, 0, 0), Qt::AlignVCenter | Qt::AlignHCenter,
                     QString::number(waitingReminders));
}

ClockColours CClocksPicture::ColoursOf(std::size_t clock) const {
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

}  // namespace rlx
