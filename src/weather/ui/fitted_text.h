#pragma once

#include <QPainter>
#include <QRectF>
#include <QString>

namespace rlx {

/// Pixel sizes between which a text chooses its own.
struct FontRange {
    double largest;
    double smallest = 9;
};

/// The font at the largest size of the range at which `text` fits into `room`; at the smallest when none does.
QFont FittedFont(const QFont& base, const QString& text, const QSizeF& room, FontRange range);

/// Draws one line in the pen's colour; a text that is too long even at the smallest size is cut with an ellipsis.
void PaintFitted(QPainter& painter, const QRectF& room, int alignment, const QString& text, FontRange range,
                 bool bold = false);

}  // namespace rlx
