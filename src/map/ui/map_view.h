#pragma once

#include <QFont>
#include <QPainter>
#include <optional>
#include <vector>

#include "map/map_cities.h"
#include "map/ui/city_marks.h"
#include "map/ui/map_layer.h"

namespace rlx {

/// What stands in the picture of the Map screen: the map with its night side, the Sun over the place where it is
/// overhead, and the cities with their names. Knows which city lies under a point. Coordinates are device-independent
/// pixels of the screen. User-interface thread.
class CMapView {
public:
    /// Both must outlive the view.
    CMapView(CCityDatabase& cities, const CLook& look);

    /// Where the picture stands from now on, its margins included, and the font of the names.
    void SetArea(const QRect& area, const QFont& font);

    /// The cities that are marked; the first is the selected one, and its name finds a place before all others.
    void Mark(const std::vector<CityIndex>& cities);

    /// The cities have changed.
    void ForgetCities() { m_places.Forget(); }

    /// The skin has changed.
    void ForgetImage() { m_layer.Forget(); }

    /// Draws the night of that instant, to be painted with `ratio` device pixels to one.
    void Draw(const SolarInstant& instant, double ratio);

    /// False when the skin's image is missing or broken.
    bool HasImage() const { return m_layer.HasImage(); }

    /// Paints what was drawn last; `missing` stands in the picture when there is no image.
    void Paint(QPainter& painter, const QString& missing) const;

    /// The city on or near a point. Marked ones come before all others, so that a square can be hit in a crowded place.
    std::optional<CityIndex> CityAt(const QPointF& point);

private:
    MapGeometry Geometry() const;
    QPointF PlaceOf(const EarthPoint& point) const;
    void PlaceMarks();
    void PaintMarks(QPainter& painter) const;
    void PaintSun(QPainter& painter) const;

    CCityDatabase& m_cities;
    const CLook& m_look;
    CMapLayer m_layer;
    CMapCities m_places;
    QRect m_area;
    QFont m_font;
    std::vector<CityIndex> m_marked;
    std::vector<CityMark> m_marks;
    EarthPoint m_sun;
};

}  // namespace rlx
