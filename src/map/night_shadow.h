#pragma once

#include <cstdint>
#include <vector>

#include "map/night_bands.h"
#include "platform/bitmap.h"

/// The night side of a map, darkened. Pure functions, any thread.
namespace rlx {

/// A stretch of night pixels of one row: x from `begin` to `end` - 1.
struct NightRun {
    int row = 0;
    int begin = 0;
    int end = 0;

    friend bool operator==(const NightRun&, const NightRun&) = default;
};

/// The strip of every column, c = 0, 1, 2 ...: rows from `top` to `bottom` - 1, none where `bottom` is not above `top`.
/// Column k between two computed ones, `step` apart, has both bounds of the former moved by k times
/// (latter - former) / step, cut to a whole number; after a column without a night the ones between stay empty.
std::vector<NightBand> NightStrips(const std::vector<NightBand>& bands, int step);

/// The pixels of all strips as runs of rows, in the order in which the runs end from left to right. The two columns
/// beyond the map's width fall on the margin; what lies outside the picture is left out.
std::vector<NightRun> NightRuns(const MapGeometry& geometry, const std::vector<NightBand>& bands, int step);

/// Every night pixel becomes itself AND `colour` (0xBBGGRR). White leaves the map as it is, black blacks the night out.
/// `geometry` gives the margin; width and height are the bitmap's where it is smaller.
void Shade(CBitmap& map, const MapGeometry& geometry, const std::vector<NightBand>& bands, int step,
           std::uint32_t colour);

/// All of it for one instant: bands, then `Shade`.
void ShadeNight(CBitmap& map, const MapGeometry& geometry, const SolarInstant& instant, std::uint32_t colour);

}  // namespace rlx
