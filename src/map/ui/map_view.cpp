#include "map/ui/map_view.h"

#include <algorithm>
#include <cmath>

#include "map/ui/map_layout.h"
#include "uikit/qt_text.h"

namespace rlx {
namespace {

constexpr double kFinger = 14;  // pixels around a city that count as the city
constexpr double kSunRadius = 5;
constexpr int kSunRays = 8;
constexpr int kMarkFont = 10;  // pixels
constexpr QRgb kSunColour = 0xFFFFC83CU;
constexpr QRgb kSunEdge = 0xFF7A4E00U;

}  // namespace

CMapView::CMapView(CCityDatabase& cities, const CLook& look)
    : m_cities(cities), m_look(look), m_layer(look), m_places(cities) {}

void CMapView::SetArea(const QRect& area, const QFont& font) {
    m_area = area;
    m_font = font;
    m_font.setPixelSize(kMarkFont);
    PlaceMarks();
}

void CMapView::Mark(const std::vector<CityIndex>& cities) {
    m_marked = cities;
    PlaceMarks();
}

void CMapView::Draw(const SolarInstant& instant, double ratio) {
    m_layer.Resize((QSizeF(m_area.size()) * ratio).toSize(), static_cast<int>(std::lround(kMapMargin * ratio)));
    m_layer.Shade(instant);
    m_sun = SubsolarPoint(instant);
}

void CMapView::Paint(QPainter& painter, const QString& missing) const {
    painter.drawImage(m_area, m_layer.Picture());
    painter.setRenderHint(QPainter::Antialiasing);
    if (!HasImage()) {
        painter.setPen(m_look.PanelText());
        painter.drawText(m_area.adjusted(8, 8, -8, -8), Qt::AlignCenter | Qt::TextWordWrap, missing);
    }
    PaintSun(painter);
    PaintMarks(painter);
}

std::optional<CityIndex> CMapView::CityAt(const QPointF& point) {
    if (!m_area.contains(point.toPoint())) return std::nullopt;
    std::optional<CityIndex> nearest;
    double best = kFinger;
    for (const CityMark& mark : m_marks) {
        const QPointF way = mark.at - point;
        const double distance = std::hypot(way.x(), way.y());
        if (distance >= best && !mark.label.contains(point)) continue;
        best = std::min(best, distance);
        nearest = mark.city;
    }
    if (nearest) return nearest;
    const QPoint inside = (point - m_area.topLeft()).toPoint();
    return m_places.Nearest({inside.x(), inside.y()}, Geometry(), kFinger);
}

MapGeometry CMapView::Geometry() const {
    return {m_area.width(), m_area.height(), kMapMargin};
}

QPointF CMapView::PlaceOf(const EarthPoint& point) const {
    const MapPixel pixel = PixelOf(point, Geometry());
    return QPointF(m_area.topLeft()) + QPointF(pixel.x + 0.5, pixel.y + 0.5);
}

void CMapView::PlaceMarks() {
    m_marks.clear();
    if (m_area.isEmpty()) return;
    for (const CityIndex index : m_marked) {
        const auto city = m_cities.Record(index);
        if (city) m_marks.push_back({index, ToQString(city->name), PlaceOf(PointOfCity(*city))});
    }
    PlaceLabels(m_marks, m_area, QFontMetricsF(m_font));
}

void CMapView::PaintMarks(QPainter& painter) const {
    painter.setFont(m_font);
    for (const CityMark& mark : m_marks) {
        const bool selected = mark.city == m_marked.front();
        const QColor ground = selected ? m_look.Accent() : m_look.Card();
        const QColor text = selected ? m_look.AccentText() : m_look.Colour(SkinKey::kMapCNC);
        painter.setPen(Qt::NoPen);
        painter.setBrush(ground);
        painter.drawRoundedRect(mark.label, 3, 3);
        const QRectF square = QRectF(mark.at, QSizeF()).adjusted(-kMarkRadius, -kMarkRadius, kMarkRadius, kMarkRadius);
        painter.setPen(QPen(m_look.Panel(), 1));
        painter.setBrush(selected ? m_look.Accent() : m_look.Colour(SkinKey::kMapCNC));
        painter.drawRect(square);
        painter.setPen(text);
        painter.drawText(mark.label, Qt::AlignCenter, mark.name);
    }
}

/// A sun looks like one whatever the skin, and must be seen on sea, land and ice.
void CMapView::PaintSun(QPainter& painter) const {
    const QPointF at = PlaceOf(m_sun);
    for (const auto& [colour, width] : {std::pair(kSunEdge, 3.4), std::pair(kSunColour, 1.6)}) {
        painter.setPen(QPen(QColor::fromRgb(colour), width, Qt::SolidLine, Qt::RoundCap));
        painter.setBrush(QColor::fromRgb(colour));
        for (int ray = 0; ray < kSunRays; ++ray) {
            const double angle = ray * 2 * M_PI / kSunRays;
            const QPointF way(std::cos(angle), std::sin(angle));
            painter.drawLine(at + way * (kSunRadius + 1.5), at + way * (kSunRadius + 3.5));
        }
        painter.drawEllipse(at, kSunRadius - 1, kSunRadius - 1);
    }
}

}  // namespace rlx
