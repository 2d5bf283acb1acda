#include "map/night_shadow.h"

#include <algorithm>
#include <cstdio>
#include <random>

#include "astro/angles.h"
#include "astro/night_test.h"

namespace rlx {
namespace {

/// The definition itself: every row tested by itself.
NightBand ScannedBand(int column, const MapGeometry& geometry, const SolarInstant& sun) {
    NightBand band;
    const double longitude = 180.0 - column * 360.0 / geometry.MapWidth();
    for (int row = 0; row < geometry.height; ++row) {
        if (!IsNightAt(row, geometry.height, sun.declination, kStandardAltitude, sun.rightAscension, longitude,
                       sun.siderealTime, sun.dayFraction))
            continue;
        if (band.top < 0) band.top = row;
        band.bottom = row;
    }
    return band;
}

/// True when all of `bands` are what a scan finds; says where not.
void ExpectScanned(const std::vector<NightBand>& bands, const MapGeometry& geometry, const SolarInstant& sun) {
    const int step = ColumnStep(sun);
    ASSERT_EQ(bands.size(), static_cast<std::size_t>((geometry.MapWidth() + 2 + step - 1) / step));
    for (std::size_t i = 0; i < bands.size(); ++i) {
        const int column = static_cast<int>(i) * step;
        ASSERT_EQ(bands[i], ScannedBand(column, geometry, sun))
            << "column " << column << " of " << geometry.MapWidth() << 'x' << geometry.height << " at " << sun.julianDay
            << ": " << bands[i].top << ' ' << bands[i].bottom;
    }
}

TEST(NightBands, AreWhatAScanOfTheRowsFinds) {
    std::mt19937 random(20240320);
    const auto pick = [&](int low, int high) { return std::uniform_int_distribution<int>(low, high)(random); };
    int none = 0;
    int whole = 0;
    constexpr int kInstants = 4000;
    for (int i = 0; i < kInstants && !testing::Test::HasFatalFailure(); ++i) {
        // A third of the instants lie around an equinox, where bands are narrow, interior or missing.
        const Date date = i % 3 == 0 ? Date{pick(1600, 2400), i % 2 == 0 ? 3 : 9, pick(18, 25)}
                                     : AddDays({1900, 1, 1}, pick(0, 100000));
        const SolarInstant sun = SolarInstantAt({date, pick(0, 23), pick(0, 59), pick(0, 59), 0});
        const MapGeometry geometry{pick(1, 60), pick(1, i % 50 == 0 ? 2000 : 90), 0};
        const auto bands = ComputeBands(geometry, sun);
        ExpectScanned(bands, geometry, sun);
        for (const NightBand& band : bands) {
            none += band.top < 0 ? 1 : 0;
            whole += band.top == 0 && band.bottom == geometry.height - 1 ? 1 : 0;
        }
    }
    std::printf("%d columns without a night, %d in night from edge to edge\n", none, whole);
    EXPECT_GT(none, 1000);
}

TEST(NightStrips, MoveByWholeSteps) {
    const std::vector<NightBand> bands = {{10, 100}, {17, 98}, {-1, -1}, {5, 6}, {4, 8}};
    const std::vector<NightBand> strips = {{10, 100}, {12, 100}, {14, 100}, {17, 98}, {11, 65}, {5, 32}, {-1, -1},
                                           {-1, -1},  {-1, -1},  {5, 6},    {5, 6},   {5, 6},   {4, 8}};
    EXPECT_EQ(NightStrips(bands, 3), strips);
    EXPECT_EQ(NightStrips(bands, 1), bands);
    EXPECT_TRUE(NightStrips({}, 3).empty());
}

/// Strip by strip, as the shadow is defined.
CBitmap ShadedByStrips(CBitmap map, const MapGeometry& geometry, const std::vector<NightBand>& bands, int step,
                       std::uint32_t mask) {
    const auto strips = NightStrips(bands, step);
    for (int c = 0; c < static_cast<int>(strips.size()); ++c) {
        const int x = geometry.margin + c;
        const NightBand& strip = strips[static_cast<std::size_t>(c)];
        for (int y = strip.top; y < strip.bottom; ++y) {
            if (x >= 0 && x < map.Width() && y >= 0 && y < map.Height()) map.Row(y)[x] &= mask;
        }
    }
    return map;
}

TEST(NightShadow, RowsDarkenWhatStripsWould) {
    std::mt19937 random(7);
    const auto pick = [&](int low, int high) { return std::uniform_int_distribution<int>(low, high)(random); };
    for (int i = 0; i < 500; ++i) {
        const MapGeometry geometry{pick(1, 70), pick(1, 40), pick(0, 5)};
        CBitmap map(geometry.width, geometry.height);
        for (int y = 0; y < geometry.height; ++y)
            std::generate_n(map.Row(y), geometry.width, [&] { return 0xFF000000U | random(); });
        std::vector<NightBand> bands(static_cast<std::size_t>(pick(0, 80)));
        for (NightBand& band : bands) {
            const int top = pick(-1, geometry.height - 1);
            band = {top, top < 0 ? -1 : pick(top, geometry.height + 3)};
        }
        const int step = i % 2 == 0 ? 3 : 1;
        const CBitmap expected = ShadedByStrips(map, geometry, bands, step, 0xFF3F3F1FU);
        Shade(map, geometry, bands, step, 0x1F3F3FU);
        ASSERT_EQ(map, expected) << geometry.width << 'x' << geometry.height << '+' << geometry.margin << ' ' << i;
    }
}

}  // namespace
}  // namespace rlx
