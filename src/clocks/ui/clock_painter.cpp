#include "clocks/ui/clock_painter.h"

#include <algorithm>
#include <cmath>

namespace rlx {

namespace {

constexpr int kRimOpacity = 70;        // of 255
constexpr double kSmallestRadius = 4;  // pixels
constexpr double kHeightForNote = 46;  // pixels; four lines in less cannot be read

double RadiusIn(const QRectF& area) {
    return std::min(area.width(), area.height()) / 2 - 1;
}

QPointF OnCircle(const QPointF& centre, double radius, double degrees) {
    const double angle = degrees * M_PI / 180.0;
    return {centre.x() + radius * std::sin(angle), centre.y() - radius * std::cos(angle)};
}

/// By night the lighter of face and hands gives the hands, the darker the ground; by day the other way round, whatever
/// the skin.
struct FaceColours {
    QColor ground;
    QColor ink;
};

FaceColours FaceColoursOf(const ClockColours& colours, bool day) {
    const bool faceIsLight = colours.face.lightness() >= colours.hands.lightness();
    const QColor& light = faceIsLight ? colours.face : colours.hands;
    const QColor& dark = faceIsLight ? colours.hands : colours.face;
    return day ? FaceColours{light, dark} : FaceColours{dark, light};
}

void PaintGround(QPainter& painter, const QPointF& centre, double radius, const FaceColours& colours) {
    QRadialGradient ground(centre, radius, centre - QPointF(radius * 0.25, radius * 0.35));
    ground.setColorAt(0, colours.ground.lighter(112));
    ground.setColorAt(1, colours.ground.darker(106));
    QColor rim = colours.ink;
    rim.setAlpha(kRimOpacity);
    painter.setBrush(ground);
    painter.setPen(QPen(rim, std::max(1.0, radius * 0.03)));
    painter.drawEllipse(centre, radius, radius);
}

void PaintHand(QPainter& painter, const QPointF& centre, double degrees, double from, double to, double width,
               const QColor& colour) {
    painter.setPen(QPen(colour, width, Qt::SolidLine, Qt::RoundCap));
    painter.drawLine(OnCircle(centre, from, degrees), OnCircle(centre, to, degrees));
}

/// The largest font of at most `height` pixels in which `text` is no wider than `width`.
QFont FittingFont(const QString& text, double width, double height, bool bold) {
    QFont font("Arial");
    font.setStyleHint(QFont::SansSerif);
    font.setBold(bold);
    font.setPixelSize(std::max(7, static_cast<int>(height * 0.82)));
    const double natural = QFontMetricsF(font).horizontalAdvance(text);
    if (natural > width) font.setPixelSize(std::max(7, static_cast<int>(font.pixelSize() * width / natural)));
    return font;
}

void PaintLine(QPainter& painter, const QRectF& line, const QString& text, const QColor& colour, bool bold,
               Qt::Alignment alignment) {
    if (text.isEmpty()) return;
    const QFont font = FittingFont(text, line.width(), line.height(), bold);
    painter.setFont(font);
    painter.setPen(colour);
    const QString shown = QFontMetricsF(font).elidedText(text, Qt::ElideRight, line.width() + 1);
    painter.drawText(line, static_cast<int>(alignment | Qt::AlignVCenter) | Qt::TextSingleLine, shown);
}

/// Time and AM/PM side by side, the latter smaller, on one base line.
void PaintTime(QPainter& painter, const QRectF& line, const ClockTexts& texts, const QColor& colour,
               Qt::Alignment alignment) {
    if (texts.half.isEmpty()) {
        PaintLine(painter, line, texts.time, colour, true, alignment);
        return;
    }
    constexpr double kHalfScale = 0.55;
    QFont large = FittingFont(texts.time + texts.half, line.width(), line.height(), true);
    QFont small = large;
    small.setPixelSize(std::max(7, static_cast<int>(large.pixelSize() * kHalfScale)));
    const double timeWidth = QFontMetricsF(large).horizontalAdvance(texts.time);
    const double width = timeWidth + QFontMetricsF(small).horizontalAdvance(texts.half);
    const double left = alignment & Qt::AlignHCenter ? line.left() + (line.width() - width) / 2 : line.left();
    const double base = line.center().y() + QFontMetricsF(large).capHeight() / 2;
    painter.setPen(colour);
    painter.setFont(large);
    painter.drawText(QPointF(left, base), texts.time);
    painter.setFont(small);
    painter.drawText(QPointF(left + timeWidth, base), texts.half);
}

/// Date and distance in one line; the day of the week gives way where there is no room for both.
QString DateWithDistance(const ClockTexts& texts, const QRectF& line) {
    if (texts.shortNote.isEmpty()) return texts.date;
    QString both = texts.date + QStringLiteral("  ") + texts.shortNote;
    const QFont font = FittingFont(both, line.width(), line.height(), false);
    if (QFontMetricsF(font).horizontalAdvance(both) <= line.width() + 1) return both;
    return texts.date.section(' ', 0, 0) + QStringLiteral("  ") + texts.shortNote;
}

/// The lines of texts, from above; without a note where four lines cannot be read or there is none.
struct TextLines {
    QRectF city;
    QRectF time;
    QRectF date;
    QRectF note;
};

TextLines TextLinesIn(const QRectF& area, const ClockTexts& texts) {
    const double unit = area.height() / 10.0;
    const auto line = [&area, unit](double from, double rows) {
        return QRectF(area.left(), area.top() + from * unit, area.width(), rows * unit);
    };
    if (!texts.note.isEmpty() && area.height() >= kHeightForNote)
        return {line(0, 2.5), line(2.5, 3.3), line(5.9, 2.0), line(7.9, 2.0)};
    return {line(0.2, 2.9), line(3.1, 3.9), line(7.2, 2.5), {}};
}

}  // namespace

void PaintClockFace(QPainter& painter, const QRectF& area, bool day, const ClockColours& colours) {
    const double radius = RadiusIn(area);
    if (radius < kSmallestRadius) return;
    const QPointF centre = area.center();
    painter.setRenderHint(QPainter::Antialiasing);
    const FaceColours face = FaceColoursOf(colours, day);
    PaintGround(painter, centre, radius, face);
    for (const ClockMark& mark : MarksFor(radius)) {
        PaintHand(painter, centre, mark.angle, mark.from * radius, mark.to * radius, std::max(0.8, mark.width * radius),
                  face.ink);
    }
}

void PaintClockHands(QPainter& painter, const QRectF& area, const ClockHands& hands, bool day,
                     const ClockColours& colours) {
    const double radius = RadiusIn(area);
    if (radius < kSmallestRadius) return;
    const QPointF centre = area.center();
    painter.setRenderHint(QPainter::Antialiasing);
    const QColor ink = FaceColoursOf(colours, day).ink;
    PaintHand(painter, centre, hands.hour, 0, radius * 0.5, std::max(1.6, radius * 0.075), ink);
    PaintHand(painter, centre, hands.minute, 0, radius * 0.76, std::max(1.2, radius * 0.05), ink);
    PaintHand(painter, centre, hands.second, -radius * 0.16, radius * 0.82, std::max(0.8, radius * 0.018),
              colours.second);
    painter.setPen(Qt::NoPen);
    painter.setBrush(colours.second);
    painter.drawEllipse(centre, std::max(1.5, radius * 0.05), std::max(1.5, radius * 0.05));
}

void PaintClockNotes(QPainter& painter, const QRectF& area, const ClockTexts& texts, const ClockColours& colours,
                     Qt::Alignment alignment) {
    const TextLines lines = TextLinesIn(area, texts);
    const QString date = lines.note.isEmpty() ? DateWithDistance(texts, lines.date) : texts.date;
    PaintLine(painter, lines.city, texts.city, colours.city, true, alignment);
    PaintLine(painter, lines.date, date, colours.date, false, alignment);
    if (!lines.note.isEmpty()) PaintLine(painter, lines.note, texts.note, colours.date, false, alignment);
}

void PaintClockTime(QPainter& painter, const QRectF& area, const ClockTexts& texts, const QColor& colour,
                    Qt::Alignment alignment) {
    PaintTime(painter, TextLinesIn(area, texts).time, texts, colour, alignment);
}

}  // namespace rlx
