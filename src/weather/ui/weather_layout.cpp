#include "weather/ui/weather_layout.h"

#include <algorithm>

namespace rlx {

namespace {

constexpr int kHeadingFrom = 420;  // pixels of height
constexpr int kOneBarFrom = 260;   // pixels of width, when lying
constexpr int kOneOriginLineFrom = 560;
constexpr int kColumnsFrom = 300;  // pixels of width: five dates beside each other

QRect TakeTop(QRect& rest, int height) {
    const QRect top(rest.left(), rest.top(), rest.width(), height);
    rest.setTop(rest.top() + height);
    return top;
}

QRect TakeRight(QRect& rest, int width) {
    const QRect right(rest.left() + rest.width() - width, rest.top(), width, rest.height());
    rest.setWidth(rest.width() - width);
    return right;
}

/// Cells of equal width, a gap between them.
QRect Cell(const QRect& area, int index, int count, int gap) {
    const double width = (area.width() - gap * (count - 1.0)) / count;
    const int left = area.left() + static_cast<int>(index * (width + gap));
    const int right = area.left() + static_cast<int>(index * (width + gap) + width);
    return {left, area.top(), right - left, area.height()};
}

QRect CellBelow(const QRect& area, int index, int count, int gap) {
    const QRect cell = Cell({area.top(), area.left(), area.height(), area.width()}, index, count, gap);
    return {cell.top(), cell.left(), cell.height(), cell.width()};
}

int GapOf(const QRect& area) {
    return std::clamp(std::min(area.width(), area.height()) / 50, 3, 14);
}

}  // namespace

WeatherLayout LayOutWeather(const QRect& area) {
    WeatherLayout layout;
    const int gap = GapOf(area);
    const int bar = std::clamp(std::min(area.width(), area.height()) / 14, 28, 46);
    QRect rest = area.adjusted(gap, gap / 2, -gap, -gap / 2);
    const bool heading = area.height() >= kHeadingFrom;
    const bool oneBar = !heading && area.width() > area.height() && area.width() >= kOneBarFrom;
    QRect places = TakeTop(rest, bar);
    QRect links = places;
    if (oneBar) {
        links = TakeRight(places, bar * 2);
    } else {
        links = TakeTop(rest, heading ? bar * 5 / 4 : bar);
    }
    layout.update = TakeRight(links, oneBar ? bar : bar * 5 / 4);
    layout.unit = TakeRight(links, oneBar ? bar : bar * 5 / 4);
    if (heading) {
        layout.view = TakeRight(links, std::min(bar * 4, links.width() * 2 / 5));
        layout.heading = links;
    } else if (!oneBar) {
        layout.view = links;
    }
    for (int i = 0; i < 4; ++i)
        layout.places[static_cast<std::size_t>(i)] = Cell(places, i, 4, gap);
    const int line = std::clamp(std::min(area.width(), area.height()) / 26, 14, 24);
    layout.originInTwoLines = rest.width() < kOneOriginLineFrom;
    const bool twoLines = layout.originInTwoLines;
    const int origin = twoLines ? line * 2 : line;
    layout.origin = {rest.left(), rest.top() + rest.height() - origin, rest.width(), origin};
    layout.body = rest.adjusted(0, gap, 0, -origin - gap / 2);
    return layout;
}

std::vector<QRect> LayOutDays(const QRect& body, std::size_t count) {
    std::vector<QRect> days;
    days.reserve(count);
    const int gap = GapOf(body);
    const bool columns = body.width() > body.height() && body.width() >= kColumnsFrom;
    const int cells = static_cast<int>(std::max<std::size_t>(count, 5));
    for (int i = 0; i < static_cast<int>(count); ++i)
        days.push_back(columns ? Cell(body, i, cells, gap) : CellBelow(body, i, cells, gap));
    return days;
}

DetailLayout LayOutDetail(const QRect& body) {
    DetailLayout layout;
    const int gap = GapOf(body);
    const int bar = std::clamp(std::min(body.width(), body.height()) / 12, 28, 44);
    QRect rest = body;
    layout.name = TakeTop(rest, bar);
    layout.previous = {layout.name.left(), layout.name.top(), bar * 3 / 2, bar};
    layout.next = TakeRight(layout.name, bar * 3 / 2);
    layout.name.setLeft(layout.previous.right() + 1);
    rest.adjust(0, gap, 0, 0);
    const bool beside = rest.width() > rest.height() * 1.1;
    if (beside) {
        layout.chart = TakeRight(rest, rest.width() * (rest.width() < kColumnsFrom ? 36 : 42) / 100);
        layout.details = rest.adjusted(0, 0, -gap, 0);
    } else {
        layout.details = TakeTop(rest, rest.height() * 62 / 100);
        layout.chart = rest.adjusted(0, gap, 0, 0);
    }
    return layout;
}

}  // namespace rlx
