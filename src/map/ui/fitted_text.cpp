#include "map/ui/fitted_text.h"

#include <algorithm>

namespace rlx {

void PaintFitted(QPainter& painter, const QRectF& area, const QString& text, double height, Qt::Alignment alignment,
                 bool bold) {
    constexpr int kLeast = 9;
    QFont font = painter.font();
    font.setBold(bold);
    font.setPixelSize(std::max(kLeast, static_cast<int>(height)));
    const double natural = QFontMetricsF(font).horizontalAdvance(text);
    if (natural > area.width())
        font.setPixelSize(std::max(kLeast, static_cast<int>(font.pixelSize() * area.width() / natural)));
    painter.setFont(font);
    const QString shown = QFontMetricsF(font).elidedText(text, Qt::ElideRight, area.width() + 1);
    painter.drawText(area, static_cast<int>(alignment | Qt::AlignVCenter) | Qt::TextSingleLine, shown);
}

}  // namespace rlx
