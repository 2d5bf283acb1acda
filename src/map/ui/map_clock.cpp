#include "map/ui/map_clock.h"

#include <QPainter>
#include <algorithm>
#include <cmath>

#include "map/ui/fitted_text.h"
#include "uikit/qt_text.h"

namespace rlx {
namespace {

constexpr double kPadding = 4;
constexpr int kFaceFrom = 230;  // pixels of width
constexpr int kLeastDateFont = 11;
constexpr double kDateShrinks = 0.6;  // before it loses its year

void PaintHand(QPainter& painter, const QPointF& centre, double turn, double length, double width) {
    const double angle = turn * 2 * M_PI;
    QPen pen = painter.pen();
    pen.setWidthF(width);
    pen.setCapStyle(Qt::RoundCap);
    painter.setPen(pen);
    painter.drawLine(centre, centre + QPointF(std::sin(angle), -std::cos(angle)) * length);
}

}  // namespace

CMapClock::CMapClock(const CLook& look, QWidget* parent) : QAbstractButton(parent), m_look(look) {
    setFocusPolicy(Qt::TabFocus);
    connect(&m_look, &CLook::Changed, this, [this] { m_still.Forget(); });
}

void CMapClock::Show(const ClockReading& reading, const QString& time, const QString& date) {
    m_reading = reading;
    m_time = time;
    m_date = date;
    // The pieces of the text stand far apart.
    m_longDate = ToQString(reading.longDateText).simplified();
    setText(ToQString(reading.name));
    setAccessibleDescription(text() + QStringLiteral(", ") + m_time + QStringLiteral(", ") + m_longDate);
    update();
}

/// With its year where that can be read.
QString CMapClock::DateFor(double width, double height, const QFont& font) const {
    QFont sized = font;
    sized.setPixelSize(std::max(kLeastDateFont, static_cast<int>(height * kDateShrinks)));
    return QFontMetricsF(sized).horizontalAdvance(m_longDate) <= width ? m_longDate : m_date;
}

QRectF CMapClock::Inside() const {
    return QRectF(rect()).adjusted(kPadding, kPadding / 2, -kPadding, -kPadding / 2);
}

QRectF CMapClock::Face() const {
    const QRectF inside = Inside();
    return {inside.topLeft(), QSizeF(inside.height(), inside.height())};
}

/// The card and the empty face.
void CMapClock::PaintStill(QPainter& painter, const Still& still) const {
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(still.focus ? QPen(m_look.PanelText(), 2) : QPen(Qt::NoPen));
    painter.setBrush(m_look.Card());
    painter.drawRoundedRect(QRectF(rect()).adjusted(1, 1, -1, -1), 6, 6);
    if (!still.face) return;
    painter.setPen(QPen(m_look.Colour(SkinKey::kMapACC), 1.2));
    painter.setBrush(m_look.Panel());
    painter.drawEllipse(Face().adjusted(1, 1, -1, -1));
}

void CMapClock::PaintHands(QPainter& painter, const QRectF& face) const {
    const QPointF centre = face.center();
    const double radius = face.width() / 2 - 1;
    const double minute = (m_reading.minute + m_reading.second / 60.0) / 60.0;
    painter.setPen(QPen(m_look.Colour(SkinKey::kMapACC), 1.2));
    PaintHand(painter, centre, (static_cast<double>(m_reading.hour % 12) + minute) / 12.0, radius * 0.5, 2);
    PaintHand(painter, centre, minute, radius * 0.8, 1.4);
}

/// Three lines, one below the other.
void CMapClock::PaintTall(QPainter& painter, const QRectF& area) const {
    const double line = std::min(area.height() / 3, 26.0);
    QRectF at(area.left(), area.top() + (area.height() - 3 * line) / 2, area.width(), line);
    const auto paint = [&](SkinKey colour, const QString& words, double share, bool bold) {
        painter.setPen(m_look.Colour(colour));
        PaintFitted(painter, at, words, line * share, Qt::AlignHCenter, bold);
        at.translate(0, line);
    };
    paint(SkinKey::kMapCNC, text(), 0.66, true);
    paint(SkinKey::kMapDCC, m_time, 0.9, true);
    paint(SkinKey::kMapDC, DateFor(area.width(), line * 0.6, font()), 0.6, false);
}

/// Time on the left; city and date on the right, in a narrow clock with the date beside the time.
void CMapClock::PaintFlat(QPainter& painter, const QRectF& area) const {
    const bool narrow = width() < kFaceFrom;
    const double line = area.height() / 2;
    const double left = narrow ? area.width() * 0.55 : std::min(area.width() * 0.5, area.height() * 3.4);
    const QRectF time(area.left(), area.top(), left, narrow ? line : area.height());
    const QRectF beside(time.right() + kPadding, area.top(), area.width() - left - kPadding, line);
    const QRectF below(area.left(), area.top() + line, area.width(), line);
    painter.setPen(m_look.Colour(SkinKey::kMapDCC));
    PaintFitted(painter, time, m_time, time.height() * (narrow ? 0.86 : 0.66), Qt::AlignLeft, true);
    painter.setPen(m_look.Colour(SkinKey::kMapCNC));
    PaintFitted(painter, narrow ? below : beside, text(), line * 0.78, Qt::AlignLeft, true);
    painter.setPen(m_look.Colour(SkinKey::kMapDC));
    PaintFitted(painter, narrow ? beside : beside.translated(0, line), DateFor(beside.width(), line * 0.72, font()),
                line * 0.72, narrow ? Qt::AlignRight : Qt::AlignLeft);
}

void CMapClock::paintEvent(QPaintEvent* /*event*/) {
    QPainter painter(this);
    const bool tall = height() > width() / 2;
    const Still still{hasFocus(), !tall && width() >= kFaceFrom};
    painter.drawPixmap(
        0, 0,
        m_still.Of(
            still, size(), devicePixelRatioF(), [&](QPainter& p) { PaintStill(p, still); }, StillGround::kClear));
    painter.setRenderHint(QPainter::Antialiasing);
    QRectF area = Inside();
    if (tall) {
        PaintTall(painter, area);
        return;
    }
    if (still.face) {
        PaintHands(painter, Face());
        area.setLeft(Face().right() + kPadding);
    }
    PaintFlat(painter, area);
}

}  // namespace rlx
