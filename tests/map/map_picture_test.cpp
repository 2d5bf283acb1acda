#include "map/map_picture.h"

namespace rlx {
namespace {

TEST(MapPicture, PlacesLieWhereTheMapShowsThem) {
    const MapGeometry geometry{368, 180, 4};
    const struct {
        const char* name;
        EarthPoint point;
        MapPixel pixel;
    } rows[] = {
        {"greenwich", {51.5, 0.0}, {184, 38}},
        {"date line from the west", {0.0, -180.0}, {4, 90}},
        {"date line, once round", {0.0, 180.0}, {4, 90}},
        {"north pole", {90.0, 0.0}, {184, 0}},
        {"no such place", {1000.0, -540.5}, {363, 0}},
    };
    for (const auto& row : rows) {
        EXPECT_EQ(PixelOf(row.point, geometry), row.pixel) << row.name;
        EXPECT_EQ(PixelOf(PointOf(row.pixel, geometry), geometry), row.pixel) << row.name;
    }
    EXPECT_EQ(PointOf({0, 0}, geometry).longitude, 176.0);  // on the margin: beyond the date line
}

TEST(MapPicture, MarginsAreNotMap) {
    const CBitmap map(4, 2, 0xFF808080U);
    const CBitmap picture = MapPicture(map, {6, 2, 1}, 0x0000FF);
    const std::uint32_t row[] = {0xFFFF0000U, 0xFF808080U, 0xFF808080U, 0xFF808080U, 0xFF808080U, 0xFFFF0000U};
    for (int x = 0; x < 6; ++x)
        EXPECT_EQ(picture.Row(1)[x], row[x]) << x;
    EXPECT_EQ(MapPicture(map, {8, 4, 0}, 0), CBitmap(8, 4, 0xFF808080U));
    EXPECT_EQ(MapPicture(CBitmap(), {3, 1, 0}, 0xFFFFFF), CBitmap(3, 1, 0xFFFFFFFFU));
    EXPECT_EQ(MapPicture(map, {3, 1, 2}, 0), CBitmap(3, 1, 0xFF000000U));
    EXPECT_TRUE(MapPicture(map, {0, 4, 0}, 0).IsEmpty());
}

}  // namespace
}  // namespace rlx
