#pragma once

#include <cstdint>

#include "map/night_bands.h"
#include "platform/bitmap.h"

/// The map picture before the shadow, and where places lie on it. Pure functions, any thread.
namespace rlx {

struct MapPixel {
    int x = 0;
    int y = 0;

    friend bool operator==(const MapPixel&, const MapPixel&) = default;
};

/// The pixel of a point, always within the map proper. Longitudes beyond 180 degrees go round the Earth; latitudes are
/// limited to the poles. The map must have columns and rows.
MapPixel PixelOf(const EarthPoint& point, const MapGeometry& geometry);

/// The point at the upper left corner of a pixel; x outside the map proper goes round the Earth.
EarthPoint PointOf(const MapPixel& pixel, const MapGeometry& geometry);

/// A picture of `geometry`: `map` scaled to the map proper, margins in `colour` (0xBBGGRR). All in that colour where
/// there is no map.
CBitmap MapPicture(const CBitmap& map, const MapGeometry& geometry, std::uint32_t colour);

}  // namespace rlx
