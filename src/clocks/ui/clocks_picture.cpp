#include "clocks/ui/clocks_picture.h"

#include <algorithm>
#include <array>

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

Qt::Alignment AlignmentOf(const ClockCell& cell) {
    return cell.centred ? Qt::AlignHCenter : Qt::AlignLeft;
}

void PaintHandsAndTime(QPainter& painter, const ClockCell& cell, const ClockReading& reading, const ClockTexts& texts,
                       const ClockColours& colours) {
    const ClockHands hands = HandsAt(static_cast<int>(reading.hour), reading.minute, reading.second);
    PaintClockHands(painter, cell.face, hands, IsDay(reading), colours);
    PaintClockTime(painter, cell.texts, texts, colours.digital, AlignmentOf(cell));
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
    Still still;
    still.focused = clocks.focused;
    std::array<ClockTexts, 5> texts;
    for (std::size_t clock = 0; clock < layout.size(); ++clock) {
        texts[clock] = TextsOf(clocks, clock, m_texts);
        still.days[clock] = IsDay(clocks.readings[clock]);
        still.texts[clock] = texts[clock];
        still.texts[clock].time.clear();
        still.texts[clock].half.clear();
    }
    painter.drawPixmap(0, 0, m_still.Of(still, size, painter.device()->devicePixelRatioF(), [&](QPainter& p) {
        PaintStill(p, size, layout, still);
    }));
    painter.setRenderHint(QPainter::Antialiasing);
    for (std::size_t clock = 0; clock < layout.size(); ++clock)
        PaintHandsAndTime(painter, layout[clock], clocks.readings[clock], texts[clock], ColoursOf(clock));
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
        const ClockColours colours = ColoursOf(clock);
        PaintClockFace(painter, layout[clock].face, still.days[clock], colours);
        PaintClockNotes(painter, layout[clock].texts, still.texts[clock], colours, AlignmentOf(layout[clock]));
    }
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
