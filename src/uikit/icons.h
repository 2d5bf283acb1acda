#pragma once

#include <QColor>
#include <QIcon>
#include <QString>

namespace rlx {

/// An icon of the program's own family (data/icons, one colour, vectors), drawn in `colour` and sharp at every size.
/// An unknown name gives an empty icon. User-interface thread.
QIcon TintedIcon(const QString& name, const QColor& colour);

/// The same at one size in device-independent pixels.
QPixmap TintedPixmap(const QString& name, const QColor& colour, int size, qreal pixelRatio);

}  // namespace rlx
