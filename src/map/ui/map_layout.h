#pragma once

#include <QRect>

namespace rlx {

/// Where the parts of the Map screen stand, in device-independent pixels. They never overlap.
struct MapLayout {
    QRect picture;   ///< the map with its margins
    QRect scrubber;  ///< along the lower edge of the map, as wide as it
    QRect clock;     ///< below the scrubber or beside the map
    QRect span;      ///< button for day or year
    QRect now;       ///< button that returns to now
    QRect panel;     ///< sunrise and sunset: below all that, beside the clock or to the right of the map
};

/// Space to the left and to the right of the map proper within the picture.
inline constexpr int kMapMargin = 3;

/// Lays the screen out in `area`: the map proper is twice as wide as high and as large as the rest leaves room for.
MapLayout LayOutMap(const QRect& area);

}  // namespace rlx
