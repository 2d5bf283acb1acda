#include "map/ui/map_layout.h"

#include <algorithm>

namespace rlx {
namespace {

constexpr int kGap = 4;
constexpr int kScrubber = 24;
constexpr int kControls = 34;
constexpr int kPanelLeastHeight = 88;
constexpr int kPanelMostHeight = 190;
constexpr int kPanelMostWidth = 560;
constexpr int kSidePanelLeast = 140;
constexpr int kSidePanelMost = 300;
constexpr int kMapLeast = 120;
constexpr int kButtonMost = 76;

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

}  // namespace

MapLayout LayOutMap(const QRect& area) {
    MapLayout layout;
    const int controls = ControlsOf(area.height());
    const int fixed = kScrubber + controls + kGap;
    const int side = std::clamp(area.width() * 24 / 100, kSidePanelLeast, kSidePanelMost);
    const int below = WidthFor(area.width(), area.height() - fixed - kPanelLeastHeight - kGap);
    const int beside = WidthFor(area.width() - side - 2 * kGap, area.height() - fixed);
    if (below >= beside) {
        const int left = area.left() + (area.width() - below) / 2;
        Stack(layout, {left, area.top()}, below, controls);
        const int top = area.top() + HeightFor(below) + fixed;
        const int room = area.bottom() + 1 - top - kGap;
        const int width = std::min(area.width() - 2 * kGap, kPanelMostWidth);
        const int height = std::clamp(room, 0, kPanelMostHeight);
        layout.panel = {area.left() + (area.width() - width) / 2, top, width, height};
        return layout;
    }
    const int height = HeightFor(beside) + fixed;
    const int top = area.top() + std::max(0, (area.height() - height) / 2);
    Stack(layout, {area.left(), top}, beside, controls);
    const int left = area.left() + beside + kGap;
    const int panelHeight = std::min(height, kPanelMostHeight) - kGap;
    layout.panel = {left, top + kGap / 2, area.right() + 1 - kGap - left, panelHeight};
    return layout;
}

}  // namespace rlx
