#include "weather/ui/link_button.h"

#include <QPainter>
#include <algorithm>

#include "uikit/icons.h"
#include "weather/ui/fitted_text.h"

namespace rlx {

namespace {

constexpr int kHoverOpacity = 26;  // of 255
constexpr double kRadius = 6;
constexpr int kBoldFrom = 64;  // pixels of width: the underline alone tells in a narrower one
constexpr double kDisabledOpacity = 0.35;

int IconSize(const QRectF& room) {
    return static_cast<int>(std::min({room.width(), room.height() * 0.72, 26.0}));
}

}  // namespace

CLinkButton::CLinkButton(const CLook& look, SkinKey colour, QWidget* parent)
    : QAbstractButton(parent), m_look(look), m_colour(colour) {
    setFocusPolicy(Qt::TabFocus);
    setCursor(Qt::PointingHandCursor);
    setAttribute(Qt::WA_Hover);
}

void CLinkButton::SetIcon(const QString& name, bool mirrored) {
    m_icon = name;
    m_mirrored = mirrored;
    update();
}

void CLinkButton::WriteAlike(const std::vector<CLinkButton*>& row) {
    for (CLinkButton* button : row)
        button->m_row = row;
}

QRectF CLinkButton::TextRoom() const {
    QRectF room = QRectF(rect()).adjusted(1, 2, -1, -3);
    if (!m_icon.isEmpty()) room.setLeft(room.left() + IconSize(room) + 6);
    return room;
}

QFont CLinkButton::TextFont() const {
    QFont base = font();
    base.setBold(isChecked() && width() >= kBoldFrom);
    return base;
}

double CLinkButton::TextSize() const {
    const FontRange range{std::clamp(height() * 0.5, 11.0, 20.0)};
    return FittedFont(TextFont(), text(), TextRoom().size(), range).pixelSize();
}

void CLinkButton::paintEvent(QPaintEvent* /*event*/) {
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    if (!isEnabled()) painter.setOpacity(kDisabledOpacity);
    const QColor colour = m_look.Colour(m_colour);
    QColor ground = colour;
    ground.setAlpha(isEnabled() && (underMouse() || isDown()) ? kHoverOpacity : 0);
    painter.setBrush(ground);
    painter.setPen(hasFocus() ? QPen(m_look.Accent(), 2) : QPen(Qt::NoPen));
    painter.drawRoundedRect(QRectF(rect()).adjusted(1, 1, -1, -1), kRadius, kRadius);
    const QRectF room = TextRoom();
    if (!m_icon.isEmpty()) {
        const QRectF whole = QRectF(rect()).adjusted(1, 2, -1, -3);
        const int size = IconSize(whole);
        QPixmap icon = TintedPixmap(m_icon, colour, size, devicePixelRatioF());
        if (m_mirrored) icon = icon.transformed(QTransform::fromScale(-1, 1));
        const double left = text().isEmpty() ? whole.center().x() - size / 2.0 : whole.left() + 2;
        painter.drawPixmap(QPointF(left, room.center().y() - size / 2.0), icon);
    }
    painter.setPen(colour);
    double size = TextSize();
    for (const CLinkButton* other : m_row)
        size = std::min(size, other->TextSize());
    if (!text().isEmpty())
        PaintFitted(painter, room, m_icon.isEmpty() ? Qt::AlignCenter : Qt::AlignVCenter | Qt::AlignLeft, text(),
                    {size}, isChecked() && width() >= kBoldFrom);
    if (isChecked()) painter.fillRect(QRectF(3, height() - 3, width() - 6, 3), m_look.Colour(SkinKey::kWeatherMOREC));
}

}  // namespace rlx
