#pragma once

#include <QRectF>
#include <array>

namespace rlx {

/// Where one clock stands.
struct ClockCell {
    QRectF card;  ///< the ground that the clock lies on and the place to tap
    QRectF face;  ///< empty where there is no room for a face
    QRectF texts;
    bool centred = false;  ///< texts under the face instead of beside it
};

/// The home clock first, then the four others.
using ClocksLayout = std::array<ClockCell, 5>;

/// Lays the five clocks out in `area` (pixels), home large: on top when upright, on the left when lying. The cards
/// never overlap and fill the area, whatever its size.
ClocksLayout LayOutClocks(const QRectF& area);

}  // namespace rlx
