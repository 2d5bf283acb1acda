#include "map/night_shadow.h"

#include <algorithm>
#include <cstddef>
#include <utility>

namespace rlx {
namespace {

/// The rows of a strip that lie in the picture; {0, 0} when there are none.
NightBand Clipped(const NightBand& strip, int height) {
    const NightBand rows{std::max(strip.top, 0), std::min(strip.bottom, height)};
    return rows.bottom > rows.top ? rows : NightBand{0, 0};
}

/// Calls `visit(row, begin, end)` for every run. Strips are one column wide and as high as the map, which a cache
/// dislikes; runs follow the rows. Where the strips of two neighbours differ, runs end or begin, so the work is the
/// length of the edge of night, not its area.
template <typename Visit>
void ForEachRun(const MapGeometry& geometry, const std::vector<NightBand>& bands, int step, const Visit& visit) {
    const auto strips = NightStrips(bands, step);
    std::vector<int> begin(static_cast<std::size_t>(std::max(geometry.height, 0)));
    NightBand before{0, 0};
    const int first = std::max(geometry.margin, 0);
    const int columns = std::min(static_cast<int>(strips.size()), geometry.width - geometry.margin);
    for (int c = first - geometry.margin; c <= columns; ++c) {
        const int x = geometry.margin + c;
        const NightBand now =
            c < columns ? Clipped(strips[static_cast<std::size_t>(c)], geometry.height) : NightBand{0, 0};
        const auto close = [&](int row, int end) {
            for (; row < end; ++row)
                visit(row, begin[static_cast<std::size_t>(row)], x);
        };
        const auto open = [&](int row, int end) {
            for (; row < end; ++row)
                begin[static_cast<std::size_t>(row)] = x;
        };
        close(before.top, std::min(before.bottom, now.top));
        close(std::max(before.top, now.bottom), before.bottom);
        open(now.top, std::min(now.bottom, before.top));
        open(std::max(now.top, before.bottom), now.bottom);
        before = now;
    }
}

void AndPixels(std::uint32_t* pixels, int count, std::uint32_t mask) {
    for (int i = 0; i < count; ++i)
        pixels[i] &= mask;
}

int Moved(int former, int latter, int step, int k) {
    return former + k * ((latter - former) / step);
}

}  // namespace

std::vector<NightBand> NightStrips(const std::vector<NightBand>& bands, int step) {
    std::vector<NightBand> strips;
    if (bands.empty()) return strips;
    strips.reserve(bands.size() * static_cast<std::size_t>(step));
    strips.push_back(bands.front());
    for (std::size_t i = 1; i < bands.size(); ++i) {
        const NightBand& former = bands[i - 1];
        const NightBand& latter = bands[i];
        for (int k = 1; k < step; ++k) {
            strips.push_back(former.top < 0 ? NightBand{}
                                            : NightBand{Moved(former.top, latter.top, step, k),
                                                        Moved(former.bottom, latter.bottom, step, k)});
        }
        strips.push_back(latter);
    }
    return strips;
}

std::vector<NightRun> NightRuns(const MapGeometry& geometry, const std::vector<NightBand>& bands, int step) {
    std::vector<NightRun> runs;
    ForEachRun(geometry, bands, step, [&](int row, int begin, int end) { runs.push_back({row, begin, end}); });
    return runs;
}

void Shade(CBitmap& map, const MapGeometry& geometry, const std::vector<NightBand>& bands, int step,
           std::uint32_t colour) {
    const std::uint32_t mask = PixelOfColour(colour);
    const MapGeometry inside{std::min(geometry.width, map.Width()), std::min(geometry.height, map.Height()),
                             geometry.margin};
    ForEachRun(inside, bands, step,
               [&](int row, int begin, int end) { AndPixels(map.Row(row) + begin, end - begin, mask); });
}

void ShadeNight(CBitmap& map, const MapGeometry& geometry, const SolarInstant& instant, std::uint32_t colour) {
    Shade(map, geometry, ComputeBands(geometry, instant), ColumnStep(instant), colour);
}

}  // namespace rlx
