#pragma once

#include <QIcon>
#include <QPixmap>
#include <QSize>

#include "platform/file_system.h"
#include "platform/image_codec.h"
#include "skins/skin.h"

namespace rlx {

/// A small picture of what a skin makes of the window: the Clocks background with a clock's card, and the world map
/// with its night. What the skin lacks is left out. `size` in device-independent pixels. User-interface thread.
QPixmap SkinPreview(IFileSystem& files, const IImageCodec& codec, const CSkin& skin, const QSize& size,
                    qreal pixelRatio);

/// An icon that looks the same on a selected row.
QIcon PlainIcon(const QPixmap& pixmap);

/// A square of one colour with a thin rim in `rim`, for lists of colours.
QPixmap ColourSwatch(const QColor& colour, const QColor& rim, int size, qreal pixelRatio);

}  // namespace rlx
