#include "map/ui/map_layout.h"

#include <algorithm>

namespace rlx {
namespace {

constexpr int kGap = 4;
constexpr int kScrubber = 20;
constexpr int kControls = 34;
constexpr int kPanelLeastHeight = 70;
constexpr int kPanelGoodHeight = 130;
constexpr int kPanelMostHeight = 190;
constexpr int kPanelMostWidth = 560;
constexpr int kSidePanelLeast = 140;
constexpr int kSidePanelMost = 300;
constexpr int kMapLeast = 120;
constexpr int kColumnLeast = 92;
constexpr int kColumnMost = 200;
constexpr int kButtonMost = 76;
constexpr int kFootLeast = 88;
constexpr int kFootMost = 140;
constexpr int kFootFrom = 560;  // a width for clock and panel beside each other
constexpr int kFootButtons = 28;

int ControlsOf(int height) {
    return std::clamp(height / 10, kControls, 64);
}

/// The picture's width for the room that is left to it.
int WidthFor(int width, int height) {
    return std::max(kMapLeast, std::min(width, 2 * height + 2 * kMapMargin));
}

int HeightFor(int width) {
    return (width - 2 * kMapMargin) / 2;
}

/// Map, scrubber, clock and buttons, one above the other.
void Stack(MapLayout& layout, const QPoint& corner, int width, int controls) {
    layout.picture = {corner, QSize(width, HeightFor(width))};
    layout.scrubber = {corner.x(), layout.picture.bottom() + 1, width, kScrubber};
    const int top = layout.scrubber.bottom() + 1 + kGap / 2;
    const int button = std::min(kButtonMost, width / 5);
    const int height = std::min(controls, kControls);
    const int buttonTop = top + (controls - height) / 2;
    layout.now = {corner.x() + width - button, buttonTop, button, height};
    layout.span = layout.now.translated(-button - kGap, 0);
    layout.clock = {corner.x(), top, layout.span.left() - kGap - corner.x(), controls};
}

/// All below each other.
MapLayout Upright(const QRect& area, int width, int controls) {
    MapLayout layout;
    Stack(layout, {area.left() + (area.width() - width) / 2, area.top()}, width, controls);
    const int top = area.top() + HeightFor(width) + kScrubber + controls + kGap;
    const int height = std::clamp(area.bottom() + 1 - top - kGap, 0, kPanelMostHeight);
    const int panel = std::min(area.width() - 2 * kGap, kPanelMostWidth);
    layout.panel = {area.left() + (area.width() - panel) / 2, top, panel, height};
    return layout;
}

/// The panel to the right of all else.
MapLayout Lying(const QRect& area, int width, int controls) {
    MapLayout layout;
    const int height = HeightFor(width) + kScrubber + controls + kGap;
    const int top = area.top() + std::max(0, (area.height() - height) / 2);
    Stack(layout, {area.left(), top}, width, controls);
    const int left = area.left() + width + kGap;
    layout.panel = {left, top + kGap / 2, area.right() + 1 - kGap - left, std::min(height, kPanelMostHeight) - kGap};
    return layout;
}

/// For large windows: clock and buttons below the map, the panel to the right of them.
MapLayout Footed(const QRect& area, int width, int foot) {
    MapLayout layout;
    const int height = HeightFor(width) + kScrubber + foot + 2 * kGap;
    const QPoint corner(area.left() + (area.width() - width) / 2, area.top() + (area.height() - height) / 2);
    layout.picture = {corner, QSize(width, HeightFor(width))};
    layout.scrubber = {corner.x(), layout.picture.bottom() + 1, width, kScrubber};
    const int wide = std::min(std::max(width, kFootFrom), area.width() - 2 * kGap);
    const int left = area.left() + (area.width() - wide) / 2;
    const int top = layout.scrubber.bottom() + 1 + kGap;
    const int panel = std::min(wide * 58 / 100, kPanelMostWidth);
    const int clock = wide - panel - kGap;
    layout.panel = {left + clock + kGap, top, panel, foot};
    const int button = (clock - kGap) / 2;
    layout.clock = {left, top, clock, foot - kFootButtons - kGap};
    layout.span = {left, top + foot - kFootButtons, button, kFootButtons};
    layout.now = layout.span.translated(button + kGap, 0);
    return layout;
}

/// For small lying windows: clock and buttons to the right of the map, the panel below both.
MapLayout Compact(const QRect& area, int width) {
    MapLayout layout;
    const int height = HeightFor(width);
    layout.picture = {area.left(), area.top(), width, height};
    layout.scrubber = {area.left(), area.top() + height, width, kScrubber};
    const int left = area.left() + width + kGap;
    const int column = area.right() + 1 - kGap - left;
    const int button = (column - kGap) / 2;
    const int buttons = std::min(kControls, height / 3);
    const int bottom = area.top() + height + kScrubber;
    layout.span = {left, bottom - buttons, button, buttons};
    layout.now = layout.span.translated(button + kGap, 0);
    layout.clock = {left, area.top() + kGap, column, bottom - buttons - 2 * kGap - area.top()};
    const int room = area.bottom() + 1 - bottom - 2 * kGap;
    layout.panel = {area.left() + kGap, bottom + kGap, area.width() - 2 * kGap, std::clamp(room, 0, kPanelMostHeight)};
    return layout;
}

}  // namespace

MapLayout LayOutMap(const QRect& area) {
    const int controls = ControlsOf(area.height());
    const int fixed = kScrubber + controls + kGap;
    const int side = std::clamp(area.width() * 24 / 100, kSidePanelLeast, kSidePanelMost);
    const int column = std::clamp(area.width() * 30 / 100, kColumnLeast, kColumnMost);
    const int panel = std::clamp(area.height() / 5, kPanelLeastHeight, kPanelGoodHeight);
    const int foot = std::clamp(area.height() / 6, kFootLeast, kFootMost);
    const int below = WidthFor(area.width(), area.height() - fixed - panel - kGap);
    const int beside = WidthFor(area.width() - side - 2 * kGap, area.height() - fixed);
    const int compact =
        WidthFor(area.width() - column - 2 * kGap, area.height() - kScrubber - kPanelLeastHeight - 2 * kGap);
    const int footed =
        area.width() < kFootFrom + 2 * kGap ? 0 : WidthFor(area.width(), area.height() - kScrubber - foot - 2 * kGap);
    if (below >= std::max({beside, compact, footed})) return Upright(area, below, controls);
    if (footed >= std::max(beside, compact)) return Footed(area, footed, foot);
    return beside >= compact ? Lying(area, beside, controls) : Compact(area, compact);
}

}  // namespace rlx
