#pragma once

#include "platform/bitmap.h"

namespace rlx {

/// The picture in another size, at least 1x1: each side by itself averages over the area of a pixel when it shrinks and
/// goes straight from one pixel to the next (bilinear) when it grows. Never leaves the range of the values that it
/// mixes; a size that stays the same is exact. Empty for an empty picture.
CBitmap Scale(const CBitmap& bitmap, int width, int height);

/// The part of `bitmap` from (x, y) on, which must lie within it.
CBitmap Cropped(const CBitmap& bitmap, int x, int y, int width, int height);

}  // namespace rlx
