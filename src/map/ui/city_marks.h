#pragma once

#include <QFontMetricsF>
#include <QRectF>
#include <QString>
#include <vector>

#include "places/city_record.h"

namespace rlx {

/// A city on the map.
struct CityMark {
    CityIndex city = 0;
    QString name;
    QPointF at;      ///< device-independent pixels
    QRectF label{};  ///< empty where the name finds no room
};

/// Half the side of a city's square.
inline constexpr double kMarkRadius = 3;

/// Gives each city, in this order, the first free place for its name beside, above or below its square: within `map`,
/// on no other square and no other name. A name without a place is left out.
void PlaceLabels(std::vector<CityMark>& marks, const QRectF& map, const QFontMetricsF& metrics);

}  // namespace rlx
