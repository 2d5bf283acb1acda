#include "map/map_cities.h"

#include "base/number.h"

namespace rlx {

EarthPoint PointOfCity(const CityRecord& city) {
    return {ParseNumber(city.latitude), ParseNumber(city.longitude)};
}

std::optional<CityIndex> CMapCities::Nearest(const MapPixel& pixel, const MapGeometry& geometry, double reach) {
    if (m_points.empty()) {
        const auto count = static_cast<CityIndex>(m_cities.Count());
        for (CityIndex i = 0; i < count; ++i)
            m_points.push_back(PointOfCity(m_cities.Record(i).value_or(CityRecord())));
    }
    std::optional<CityIndex> nearest;
    double best = reach * reach;
    for (std::size_t i = 0; i < m_points.size(); ++i) {
        const MapPixel at = PixelOf(m_points[i], geometry);
        const double dx = at.x - pixel.x;
        const double dy = at.y - pixel.y;
        const double distance = dx * dx + dy * dy;
        if (distance > best || (nearest && distance == best)) continue;
        best = distance;
        nearest = static_cast<CityIndex>(i);
    }
    return nearest;
}

}  // namespace rlx
