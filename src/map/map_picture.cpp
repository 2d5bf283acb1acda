#include "map/map_picture.h"

#include <algorithm>
#include <cmath>

#include "platform/bitmap_scale.h"

namespace rlx {
namespace {

/// Degrees brought into [0, 360).
double Around(double degrees) {
    const double rest = std::fmod(degrees, 360.0);
    return rest < 0.0 ? rest + 360.0 : rest;
}

int PixelWithin(double place, int size) {
    return static_cast<int>(std::clamp(std::floor(place), 0.0, size - 1.0));
}

}  // namespace

MapPixel PixelOf(const EarthPoint& point, const MapGeometry& geometry) {
    const double turn = Around(point.longitude + 180.0) / 360.0;
    return {geometry.margin + PixelWithin(turn * geometry.MapWidth(), geometry.MapWidth()),
            PixelWithin((90.0 - point.latitude) / 180.0 * geometry.height, geometry.height)};
}

EarthPoint PointOf(const MapPixel& pixel, const MapGeometry& geometry) {
    const double turn = static_cast<double>(pixel.x - geometry.margin) / geometry.MapWidth();
    const double latitude = 90.0 - pixel.y * 180.0 / geometry.height;
    return {std::clamp(latitude, -90.0, 90.0), Around(turn * 360.0) - 180.0};
}

CBitmap MapPicture(const CBitmap& map, const MapGeometry& geometry, std::uint32_t colour) {
    if (geometry.width < 1 || geometry.height < 1) return {};
    CBitmap picture(geometry.width, geometry.height, PixelOfColour(colour));
    const int width = geometry.MapWidth();
    if (width < 1 || geometry.margin < 0 || map.IsEmpty()) return picture;
    const CBitmap scaled =
        map.Width() == width && map.Height() == geometry.height ? map : Scale(map, width, geometry.height);
    for (int y = 0; y < geometry.height; ++y)
        std::copy_n(scaled.Row(y), width, picture.Row(y) + geometry.margin);
    return picture;
}

}  // namespace rlx
