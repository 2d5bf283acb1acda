#include "map/ui/map_clock.h"

#include <QPainter>
#include <algorithm>
#include <cmath>

#include "base/text.h"
#include "map/ui/fitted_text.h"
#include "uikit/qt_text.h"

namespace rlx {
namespace {

constexpr double kPadding = 4;
constexpr int kFaceFrom = 160;  // pixels of width

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
}

void CMapClock::Show(const ClockReading& reading, const QString& time) {
    m_reading = reading;
    m_time = time;
    m_date = ToQString(Trim(reading.dateText)).simplified();
    setText(ToQString(reading.name));
    setAccessibleDescription(text() + QStringLiteral(", ") + m_time + QStringLiteral(", ") + m_date);
    update();
}

void CMapClock::PaintFace(QPainter& painter, const QRectF& area) const {
    const QPointF centre = area.center();
    const double radius = area.width() / 2 - 1;
    const double minute = (m_reading.minute + m_reading.second / 60.0) / 60.0;
    painter.setPen(QPen(m_look.Colour(SkinKey::kMapACC), 1.2));
    painter.setBrush(m_look.Panel());
    painter.drawEllipse(centre, radius, radius);
    PaintHand(painter, centre, (static_cast<double>(m_reading.hour % 12) + minute) / 12.0, radius * 0.5, 2);
    PaintHand(painter, centre, minute, radius * 0.8, 1.4);
}

void CMapClock::paintEvent(QPaintEvent* /*event*/) {
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(hasFocus() ? QPen(m_look.Accent(), 2) : QPen(Qt::NoPen));
    painter.setBrush(m_look.Card());
    painter.drawRoundedRect(QRectF(rect()).adjusted(1, 1, -1, -1), 6, 6);
    QRectF area = QRectF(rect()).adjusted(kPadding, kPadding / 2, -kPadding, -kPadding / 2);
    if (width() >= kFaceFrom) {
        PaintFace(painter, {area.topLeft(), QSizeF(area.height(), area.height())});
        area.setLeft(area.left() + area.height() + kPadding);
    }
    const double time = std::min(area.width() * 0.5, area.height() * 3.4);
    painter.setPen(m_look.Colour(SkinKey::kMapDCC));
    PaintFitted(painter, {area.left(), area.top(), time, area.height()}, m_time, area.height() * 0.66, Qt::AlignLeft,
                true);
    area.setLeft(area.left() + time + kPadding);
    const double line = area.height() / 2;
    painter.setPen(m_look.Colour(SkinKey::kMapCNC));
    PaintFitted(painter, {area.left(), area.top(), area.width(), line}, text(), line * 0.78, Qt::AlignLeft, true);
    painter.setPen(m_look.Colour(SkinKey::kMapDC));
    PaintFitted(painter, {area.left(), area.top() + line, area.width(), line}, m_date, line * 0.72, Qt::AlignLeft);
}

}  // namespace rlx
