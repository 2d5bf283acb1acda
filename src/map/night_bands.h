#pragma once

#include <vector>

#include "map/solar_instant.h"

/// Where on the map it is night. Pure functions, any thread.
namespace rlx {

/// A map picture, in pixels. The map proper lies between the margins, from x = `margin` to `width` - `margin`, over the
/// whole height: equirectangular, centred on Greenwich, the north pole at the upper edge.
struct MapGeometry {
    int width = 0;
    int height = 0;
    int margin = 0;

    int MapWidth() const { return width - 2 * margin; }
};

/// The first and last night row of a column, or -1 for both when it has none.
struct NightBand {
    int top = -1;
    int bottom = -1;

    friend bool operator==(const NightBand&, const NightBand&) = default;
};

/// 1 around the equinoxes (March and September), where the edge of night runs along meridians, else 3.
int ColumnStep(const SolarInstant& instant);

/// One band for every computed column c = 0, step, 2 step ... below the map's width + 2: exactly what testing every row
/// of the column finds. Empty for a map without columns or rows.
std::vector<NightBand> ComputeBands(const MapGeometry& geometry, const SolarInstant& instant);

/// The transit of the Sun over column `column`, as a fraction of the day.
double ColumnTransit(int column, int mapWidth, const SolarInstant& instant);

}  // namespace rlx
