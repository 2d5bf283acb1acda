#include "map/ui/city_marks.h"

#include <algorithm>
#include <array>

namespace rlx {
namespace {

constexpr double kGap = 2;
constexpr double kPadding = 3;

std::array<QRectF, 4> PlacesFor(const QPointF& at, const QSizeF& size) {
    const double away = kMarkRadius + kGap;
    return {QRectF({at.x() + away, at.y() - size.height() / 2}, size),
            QRectF({at.x() - away - size.width(), at.y() - size.height() / 2}, size),
            QRectF({at.x() - size.width() / 2, at.y() - away - size.height()}, size),
            QRectF({at.x() - size.width() / 2, at.y() + away}, size)};
}

QRectF SquareOf(const CityMark& mark) {
    return QRectF(mark.at, QSizeF()).adjusted(-kMarkRadius, -kMarkRadius, kMarkRadius, kMarkRadius);
}

}  // namespace

void PlaceLabels(std::vector<CityMark>& marks, const QRectF& map, const QFontMetricsF& metrics) {
    for (CityMark& mark : marks) {
        const QSizeF size(metrics.horizontalAdvance(mark.name) + 2 * kPadding, metrics.height());
        const auto places = PlacesFor(mark.at, size);
        const auto free = std::find_if(places.begin(), places.end(), [&](const QRectF& place) {
            return map.contains(place) && std::none_of(marks.begin(), marks.end(), [&](const CityMark& other) {
                       const bool onSquare = &other != &mark && SquareOf(other).intersects(place);
                       return onSquare || other.label.intersects(place);
                   });
        });
        if (free != places.end()) mark.label = *free;
    }
}

}  // namespace rlx
