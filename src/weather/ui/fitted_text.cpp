#include "weather/ui/fitted_text.h"

#include <QFontMetricsF>
#include <algorithm>

namespace rlx {

QFont FittedFont(const QFont& base, const QString& text, const QSizeF& room, FontRange range) {
    QFont font = base;
    int size = static_cast<int>(std::max(range.smallest, std::min(range.largest, room.height() * 0.86)));
    for (; size > range.smallest; --size) {
        font.setPixelSize(size);
        if (QFontMetricsF(font).horizontalAdvance(text) <= room.width()) break;
    }
    font.setPixelSize(std::max(size, 1));
    return font;
}

void PaintFitted(QPainter& painter, const QRectF& room, int alignment, const QString& text, FontRange range,
                 bool bold) {
    QFont base = painter.font();
    base.setBold(bold);
    const QFont font = FittedFont(base, text, room.size(), range);
    painter.save();
    painter.setFont(font);
    const QString line = QFontMetricsF(font).elidedText(text, Qt::ElideRight, room.width());
    painter.drawText(room, alignment | Qt::TextSingleLine | Qt::TextDontClip, line);
    painter.restore();
}

}  // namespace rlx
