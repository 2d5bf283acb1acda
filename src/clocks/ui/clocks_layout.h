#pragma once

#include <QRectF>
#include <array>
#include <cstddef>
#include <optional>

namespace rlx {

/// Where one clock stands.
struct ClockCell {
    QRectF card;  ///< the ground that the clock lies on and the place to tap
    QRectF face;  ///< empty where there is no room for a face
    QRectF texts;
    QRectF bell;           ///< for what waits, in the card's upper right corner
    bool centred = false;  ///< texts under the face instead of beside it

    /// Where a finger may touch the bell, card's corner included.
    QRectF BellTap() const {
        return {bell.topLeft() - QPointF(8, 8), card.topRight() + QPointF(0, bell.height() + 20)};
    }
};

/// The home clock first, then the four others.
using ClocksLayout = std::array<ClockCell, 5>;

/// Lays the five clocks out in `area` (pixels), home large: on top when upright, on the left when lying. The cards
/// never overlap and fill the area, whatever its size.
ClocksLayout LayOutClocks(const QRectF& area);

/// The clock whose card lies under a point.
std::optional<std::size_t> ClockAt(const ClocksLayout& layout, const QPointF& point);

/// The clock that an arrow key leads to: the nearest whose centre lies in that direction, `columns` to the right or
/// `rows` down, each -1 to 1. Nothing beyond the last.
std::optional<std::size_t> ClockTowards(const ClocksLayout& layout, std::size_t from, int columns, int rows);

}  // namespace rlx
