#include "news/ui/zoom_bar.h"

#include <QMouseEvent>
#include <QPainter>

#include "uikit/icons.h"

namespace rlx {

namespace {

// The squares: both 20 pixels wide, at these distances from the corner.
constexpr int kSquare = 20;
constexpr int kPlusAway = 23;
constexpr int kMinusAway = 46;
constexpr int kFont = 11;
constexpr int kGap = 6;

}  // namespace

CZoomBar::CZoomBar(const CLook& look, QWidget* parent) : QWidget(parent), m_look(look) {
    setObjectName("zoomBar");
    setFixedHeight(kHeight);
}

void CZoomBar::ShowOrigin(const QString& words, const QString& mark) {
    m_words = words;
    m_mark = mark;
    const QString all = mark.isEmpty() ? words : mark + ", " + words;
    setAccessibleDescription(all);
    setToolTip(all);
    update();
}

void CZoomBar::Enable(bool minus, bool plus) {
    m_minus = minus;
    m_plus = plus;
    update();
}

QRect CZoomBar::Square(int away) const {
    return {width() - away, height() - kPlusAway, kSquare, kSquare};
}

QPoint CZoomBar::Minus() const {
    return Square(kMinusAway).center();
}

QPoint CZoomBar::Plus() const {
    return Square(kPlusAway).center();
}

void CZoomBar::mousePressEvent(QMouseEvent* event) {
    if (event->button() == Qt::LeftButton) emit Tapped(event->position().toPoint());
    QWidget::mousePressEvent(event);
}

void CZoomBar::paintEvent(QPaintEvent* /*event*/) {
    QPainter painter(this);
    painter.fillRect(rect(), m_look.Bar());
    painter.setRenderHint(QPainter::Antialiasing);
    PaintOrigin(painter, width() - kMinusAway - kGap);
    const auto paintSquare = [&](const QRect& square, const char* icon, bool enabled) {
        painter.setOpacity(enabled ? 1 : 0.4);
        painter.setPen(m_look.PanelText());
        painter.setBrush(m_look.Panel());
        painter.drawRoundedRect(QRectF(square).adjusted(0.5, 0.5, -0.5, -0.5), 4, 4);
        painter.drawPixmap(square.topLeft() + QPoint(3, 3),
                           TintedPixmap(icon, m_look.PanelText(), kSquare - 6, devicePixelRatioF()));
    };
    paintSquare(Square(kPlusAway), "plus", m_plus);
    paintSquare(Square(kMinusAway), "minus", m_minus);
}

/// What has no room ends in dots; the tool tip has all of it.
void CZoomBar::PaintOrigin(QPainter& painter, int width) const {
    QFont font = painter.font();
    font.setPixelSize(kFont);
    painter.setFont(font);
    int left = kGap;
    if (!m_mark.isEmpty()) {
        const QRect chip(left, 5, painter.fontMetrics().horizontalAdvance(m_mark) + 2 * kGap, height() - 9);
        painter.setPen(Qt::NoPen);
        painter.setBrush(m_look.Accent());
        painter.drawRoundedRect(chip, 4, 4);
        painter.setPen(m_look.AccentText());
        painter.drawText(chip, Qt::AlignCenter, m_mark);
        left = chip.right() + kGap;
    }
    painter.setPen(m_look.PanelText());
    const QRect room(left, 0, width - left, height());
    painter.drawText(room, Qt::AlignVCenter | Qt::AlignLeft,
                     painter.fontMetrics().elidedText(m_words, Qt::ElideRight, room.width()));
}

}  // namespace rlx
