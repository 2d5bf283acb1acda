#include "tools/tiptax/ui/fitted_label.h"

#include <QPainter>

namespace rlx {

namespace {

constexpr int kSmallest = 9;  // pixels

}  // namespace

void CFittedLabel::Show(const QString& text) {
    setText(text);
    setToolTip(text);
}

QSize CFittedLabel::minimumSizeHint() const {
    return {1, fontMetrics().height()};
}

void CFittedLabel::paintEvent(QPaintEvent* /*event*/) {
    QFont fitted = font();
    int size = QFontInfo(fitted).pixelSize();
    while (size > kSmallest && QFontMetrics(fitted).horizontalAdvance(text()) > width())
        fitted.setPixelSize(--size);
    QPainter painter(this);
    painter.setFont(fitted);
    painter.setPen(palette().color(foregroundRole()));
    painter.drawText(rect(), static_cast<int>(alignment()),
                     QFontMetrics(fitted).elidedText(text(), Qt::ElideRight, width()));
}

}  // namespace rlx
