#include "weather/ui/day_card.h"

#include <QPainter>
#include <QPainterPath>
#include <algorithm>

#include "uikit/qt_text.h"
#include "weather/text_ids.h"
#include "weather/ui/fitted_text.h"

namespace rlx {

namespace {

constexpr double kRadius = 8;

QRectF TakeTop(QRectF& rest, double height) {
    const QRectF top(rest.left(), rest.top(), rest.width(), height);
    rest.setTop(rest.top() + height);
    return top;
}

QRectF TakeRight(QRectF& rest, double width) {
    const QRectF right(rest.right() - width, rest.top(), width, rest.height());
    rest.setRight(rest.right() - width);
    return right;
}

/// A drop of water, point up.
QPainterPath Drop(const QRectF& room) {
    QPainterPath path(QPointF(room.center().x(), room.top()));
    const double bottom = room.bottom();
    path.cubicTo({room.right() + room.width() * 0.1, room.top() + room.height() * 0.55}, {room.right(), bottom},
                 {room.center().x(), bottom});
    path.cubicTo({room.left(), bottom}, {room.left() - room.width() * 0.1, room.top() + room.height() * 0.55},
                 {room.center().x(), room.top()});
    return path;
}

}  // namespace

CDayCard::CDayCard(const ITexts& texts, const CLook& look, const CWeatherIcons& icons, QWidget* parent)
    : QAbstractButton(parent), m_texts(texts), m_look(look), m_icons(icons) {
    setFocusPolicy(Qt::TabFocus);
    setCursor(Qt::PointingHandCursor);
}

void CDayCard::Show(const DayView& view) {
    m_view = view;
    const auto labelled = [this](int label, const QString& value) {
        return QStringLiteral(", ") + ToQString(m_texts.Text(label)) + QStringLiteral(" ") + value;
    };
    setAccessibleName(view.name + QStringLiteral(", ") + view.condition + labelled(kTextHigh, view.high) +
                      labelled(kTextLow, view.low) + labelled(kTextProbability, view.chance));
    setToolTip(view.date + QStringLiteral(": ") + view.condition);
    update();
}

void CDayCard::paintEvent(QPaintEvent* /*event*/) {
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(hasFocus() ? QPen(m_look.Accent(), 2) : QPen(Qt::NoPen));
    painter.setBrush(m_look.Colour(m_view.today ? SkinKey::kWeatherCBBC : SkinKey::kWeatherFBBC));
    painter.drawRoundedRect(QRectF(rect()).adjusted(1, 1, -1, -1), kRadius, kRadius);
    const double padding = std::clamp(std::min(width(), height()) * 0.06, 2.0, 12.0);
    const QRectF room = QRectF(rect()).adjusted(padding + 1, padding, -padding - 1, -padding);
    if (height() >= width()) {
        PaintColumn(painter, room);
    } else {
        PaintRow(painter, room);
    }
}

void CDayCard::PaintChance(QPainter& painter, const QRectF& room, double size, bool toTheRight) const {
    QFont font = painter.font();
    font.setPixelSize(static_cast<int>(std::max(9.0, size)));
    painter.setFont(font);
    const double text = QFontMetricsF(font).horizontalAdvance(m_view.chance);
    const double drop = size * 0.62;
    const double whole = drop + size * 0.3 + text;
    const double left = toTheRight ? room.right() - whole : room.center().x() - whole / 2;
    const double middle = room.center().y();
    painter.fillPath(Drop({left, middle - size * 0.42, drop, size * 0.84}), m_look.Colour(SkinKey::kWeatherMOREC));
    painter.setPen(m_look.Colour(m_view.today ? SkinKey::kWeatherCBTC : SkinKey::kWeatherFBTC));
    painter.drawText(QRectF(left + drop + size * 0.3, room.top(), text + 1, room.height()), Qt::AlignVCenter,
                     m_view.chance);
}

void CDayCard::PaintColumn(QPainter& painter, QRectF room) const {
    const double height = room.height();
    const bool tall = height > 150;
    painter.setPen(m_look.Colour(SkinKey::kWeatherDAYSC));
    PaintFitted(painter, TakeTop(room, height * 0.13), Qt::AlignCenter, m_view.name, {26}, true);
    if (tall) {
        painter.setPen(m_look.Colour(SkinKey::kWeatherSATC));
        const QRectF date = TakeTop(room, height * 0.08);
        if (m_view.name != m_view.date) PaintFitted(painter, date, Qt::AlignCenter, m_view.date, {16});
    }
    m_icons.Paint(painter, TakeTop(room, height * (tall ? 0.32 : 0.40)), m_view.icon);
    painter.setPen(m_look.Colour(m_view.today ? SkinKey::kWeatherCBTC : SkinKey::kWeatherFBTC));
    if (tall) PaintFitted(painter, TakeTop(room, height * 0.10), Qt::AlignCenter, m_view.condition, {18});
    const double left = room.height();
    PaintFitted(painter, TakeTop(room, left * 0.40), Qt::AlignCenter, m_view.high, {34}, true);
    PaintFitted(painter, TakeTop(room, left * 0.30), Qt::AlignCenter, m_view.low, {24});
    PaintChance(painter, room, std::clamp(room.height() * 0.7, 9.0, 20.0), false);
}

void CDayCard::PaintRow(QPainter& painter, QRectF room) const {
    const QColor text = m_look.Colour(m_view.today ? SkinKey::kWeatherCBTC : SkinKey::kWeatherFBTC);
    const double width = room.width();
    const double size = std::clamp(room.height() * 0.42, 10.0, 24.0);
    const QRectF icon(room.left(), room.top(), std::min(room.height(), width * 0.2), room.height());
    m_icons.Paint(painter, icon, m_view.icon);
    room.setLeft(icon.right() + width * 0.02);
    PaintChance(painter, TakeRight(room, width * 0.17), std::clamp(size * 0.8, 9.0, 16.0), true);
    QRectF degrees = TakeRight(room, width * 0.29);
    painter.setPen(text);
    // As large as the bold one has room for, so that the low never outgrows the high.
    const double high = std::min(size, width * 0.052);
    PaintFitted(painter, TakeRight(degrees, degrees.width() * 0.47), Qt::AlignRight | Qt::AlignVCenter, m_view.low,
                {high * 0.9});
    PaintFitted(painter, degrees.adjusted(0, 0, -3, 0), Qt::AlignRight | Qt::AlignVCenter, m_view.high, {high}, true);
    painter.setPen(m_look.Colour(SkinKey::kWeatherDAYSC));
    PaintFitted(painter, TakeTop(room, room.height() * 0.52), Qt::AlignLeft | Qt::AlignVCenter, m_view.name, {size},
                true);
    painter.setPen(text);
    PaintFitted(painter, room, Qt::AlignLeft | Qt::AlignVCenter, m_view.condition, {size * 0.8});
}

}  // namespace rlx
