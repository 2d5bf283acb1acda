#pragma once

#include <QImage>

#include "platform/bitmap.h"

namespace rlx {

/// Shows the pixels of `bitmap` as an image without copying them. The bitmap must outlive the image.
QImage ViewOf(const CBitmap& bitmap);

/// Keeps the bitmap alive inside the image.
QImage ImageOf(CBitmap bitmap);

}  // namespace rlx
