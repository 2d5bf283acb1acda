#include "clocks/ui/clocks_layout.h"
#include "map/ui/map_layout.h"
#include "tools/ui/tool_list.h"
#include "weather/ui/weather_layout.h"

namespace rlx {
namespace {

/// Every part must lie within the area, and none over another.
void ExpectApart(const char* name, const QRectF& area, const std::vector<QRectF>& parts) {
    for (std::size_t i = 0; i < parts.size(); ++i) {
        EXPECT_TRUE(area.contains(parts[i])) << name << " part " << i;
        for (std::size_t j = 0; j < i; ++j)
            EXPECT_FALSE(parts[i].intersects(parts[j])) << name << " parts " << j << " and " << i;
    }
}

void CheckClocks(const QRectF& area) {
    std::vector<QRectF> cards;
    for (const auto& clock : LayOutClocks(area)) {
        cards.push_back(clock.card);
        ExpectApart("clock", clock.card, {clock.face, clock.texts});
        EXPECT_GE(clock.texts.width(), 40);
    }
    ExpectApart("clocks", area, cards);
}

void CheckMap(const QRect& area) {
    const MapLayout layout = LayOutMap(area);
    ExpectApart("map", area, {layout.picture, layout.scrubber, layout.clock, layout.span, layout.now, layout.panel});
    EXPECT_GE(layout.picture.width(), area.width() / 2);
    EXPECT_GE(layout.panel.height(), std::clamp(area.height() / 4, 60, 88));
}

void CheckTools(const QRect& area) {
    const std::vector<QRect> places = LayOutTools(area, 5);
    ExpectApart("tools", area, {places.begin(), places.end()});
    for (const QRect& place : places)
        EXPECT_TRUE(place.width() >= 70 && place.height() >= 70);
}

void CheckWeather(const QRect& area) {
    const WeatherLayout layout = LayOutWeather(area);
    const DetailLayout detail = LayOutDetail(layout.body);
    std::vector<QRectF> common{layout.unit, layout.update, layout.origin};
    common.insert(common.end(), layout.places.begin(), layout.places.end());
    for (const QRect& spare : {layout.heading, layout.view})
        if (!spare.isEmpty()) common.push_back(spare);
    for (const auto& body : {LayOutDays(layout.body, 5),
                             std::vector{detail.previous, detail.name, detail.next, detail.details, detail.chart}}) {
        std::vector<QRectF> parts(body.begin(), body.end());
        parts.insert(parts.end(), common.begin(), common.end());
        ExpectApart("weather", area, parts);
        for (const QRectF& part : parts)
            EXPECT_TRUE(part.width() >= 24 && part.height() >= 14);
    }
}

TEST(Layouts, PartsNeitherOverlapNorLeaveTheScreen) {
    const QSize sizes[] = {{240, 246}, {276, 210}, {480, 560}, {720, 440}, {1180, 770}, {900, 300}, {240, 1200}};
    for (const QSize& size : sizes) {
        SCOPED_TRACE(std::to_string(size.width()) + "x" + std::to_string(size.height()));
        const QRect area(QPoint(0, 0), size);
        CheckClocks(area);
        CheckMap(area);
        CheckTools(area);
        CheckWeather(area);
    }
}

}  // namespace
}  // namespace rlx
