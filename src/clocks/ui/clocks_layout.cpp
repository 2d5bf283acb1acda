#include "clocks/ui/clocks_layout.h"

#include <algorithm>
#include <cmath>

namespace rlx {

namespace {

/// Splits off part of a rectangle, from the top or from the left.
QRectF TakeTop(QRectF& rest, double height) {
    const QRectF top(rest.left(), rest.top(), rest.width(), height);
    rest.setTop(rest.top() + height);
    return top;
}

QRectF TakeLeft(QRectF& rest, double width) {
    const QRectF left(rest.left(), rest.top(), width, rest.height());
    rest.setLeft(rest.left() + width);
    return left;
}

/// How high the texts are at most, as a part of their width: under the face and beside it; and how much of the card's
/// height the face above them has.
struct TextHeights {
    double under;
    double beside;
    double face;
};
constexpr TextHeights kThreeLines = {0.46, 0.52, 0.64};
constexpr TextHeights kFourLines = {0.58, 0.68, 0.5};

/// Face above the texts in an upright card, else beside them.
ClockCell CellOf(const QRectF& card, double padding, const TextHeights& heights) {
    ClockCell cell;
    cell.card = card;
    QRectF inner = card.adjusted(padding, padding, -padding, -padding);
    cell.centred = inner.height() > inner.width() * 0.8;
    if (cell.centred) {
        const double face = std::min(inner.width(), inner.height() * heights.face);
        cell.face = TakeTop(inner, face);
        inner.setTop(inner.top() + padding * 0.6);
        const double height = std::min(inner.height(), inner.width() * heights.under);
        inner.adjust(0, (inner.height() - height) / 2, 0, -(inner.height() - height) / 2);
    } else {
        const double face = std::min(inner.height(), inner.width() * 0.42);
        cell.face = TakeLeft(inner, face);
        inner.setLeft(inner.left() + padding);
        const double height = std::min(inner.height(), inner.width() * heights.beside);
        inner.adjust(0, (inner.height() - height) / 2, 0, -(inner.height() - height) / 2);
    }
    cell.texts = inner;
    // A face above the texts leaves only the corner.
    const double bell =
        cell.centred ? std::clamp(card.height() * 0.06, 11.0, 26.0) : std::clamp(card.height() * 0.11, 12.0, 26.0);
    const double edge = cell.centred ? padding * 0.7 : padding;
    cell.bell = QRectF(card.right() - edge - bell * 1.7, card.top() + edge, bell * 1.7, bell);
    return cell;
}

/// Cells of `columns` by `rows`, row by row, a gap between them.
std::array<QRectF, 4> Grid(const QRectF& area, int columns, int rows, double gap) {
    const double width = (area.width() - gap * (columns - 1)) / columns;
    const double height = (area.height() - gap * (rows - 1)) / rows;
    std::array<QRectF, 4> cells;
    for (int i = 0; i < 4; ++i) {
        const int column = i % columns;
        const int row = i / columns;
        cells[static_cast<std::size_t>(i)] =
            QRectF(area.left() + column * (width + gap), area.top() + row * (height + gap), width, height);
    }
    return cells;
}

}  // namespace

ClocksLayout LayOutClocks(const QRectF& area) {
    const double shorter = std::min(area.width(), area.height());
    const double gap = std::clamp(shorter * 0.022, 4.0, 16.0);
    QRectF rest = area.adjusted(gap, gap, -gap, -gap);
    const bool upright = area.height() >= area.width();
    const QRectF home = upright ? TakeTop(rest, rest.height() * 0.46) : TakeLeft(rest, rest.width() * 0.44);
    if (upright) {
        rest.setTop(rest.top() + gap);
    } else {
        rest.setLeft(rest.left() + gap);
    }
    const bool column = !upright && rest.width() < rest.height() * 1.05;
    const auto cells = column ? Grid(rest, 1, 4, gap) : Grid(rest, 2, 2, gap);
    ClocksLayout layout;
    layout[0] = CellOf(home, gap * 1.4, kThreeLines);
    for (std::size_t i = 0; i < cells.size(); ++i)
        layout[i + 1] = CellOf(cells[i], gap, kFourLines);
    return layout;
}

std::optional<std::size_t> ClockAt(const ClocksLayout& layout, const QPointF& point) {
    const auto found = std::find_if(layout.begin(), layout.end(),
                                    [&point](const ClockCell& cell) { return cell.card.contains(point); });
    if (found == layout.end()) return std::nullopt;
    return static_cast<std::size_t>(found - layout.begin());
}

std::optional<std::size_t> ClockTowards(const ClocksLayout& layout, std::size_t from, int columns, int rows) {
    double best = 0;
    std::optional<std::size_t> nearest;
    for (std::size_t clock = 0; clock < layout.size(); ++clock) {
        const QPointF way = layout[clock].card.center() - layout[from].card.center();
        const double along = way.x() * columns + way.y() * rows;
        if (along <= 1) continue;
        const double across = std::abs(way.x() * rows) + std::abs(way.y() * columns);
        const double distance = along + 2 * across;
        if (nearest && distance >= best) continue;
        nearest = clock;
        best = distance;
    }
    return nearest;
}

}  // namespace rlx
