#pragma once

#include <QPainter>
#include <QRectF>
#include <QString>

namespace rlx {

/// Draws one line in the largest font of at most `height` pixels, and at least 9, in which it fits `area`; what still
/// does not fit is elided.
void PaintFitted(QPainter& painter, const QRectF& area, const QString& text, double height, Qt::Alignment alignment,
                 bool bold = false);

}  // namespace rlx
