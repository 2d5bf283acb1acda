#pragma once

#include <optional>
#include <vector>

#include "map/map_picture.h"
#include "places/city_database.h"

namespace rlx {

/// Where a city lies; the texts of its record read as numbers.
EarthPoint PointOfCity(const CityRecord& city);

/// The places of all cities, read from the database when they are first asked for. Used from one thread; the database
/// must outlive it.
class CMapCities {
public:
    explicit CMapCities(CCityDatabase& cities) : m_cities(cities) {}

    /// The cities have changed.
    void Forget() { m_points.clear(); }

    /// The city nearest to a pixel of the map, at most `reach` pixels away; among equally near ones the first.
    std::optional<CityIndex> Nearest(const MapPixel& pixel, const MapGeometry& geometry, double reach);

private:
    CCityDatabase& m_cities;
    std::vector<EarthPoint> m_points;  ///< by index
};

}  // namespace rlx
