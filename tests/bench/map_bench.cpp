// The night shadow beside the cost of ANDing the same night pixels once. Times are per redraw; the counter "per_pixel"
// is the time per pixel of the map.
#include <benchmark/benchmark.h>

#include <array>

#include "map/night_shadow.h"

namespace rlx {
namespace {

constexpr std::uint32_t kShadow = 0x7F7F7F;

struct Season {
    const char* name;
    DateTime universalTime;
};

const std::array<Season, 2> kSeasons = {{
    {"solstice", {{2024, 6, 20}, 20, 51, 0, 0}},
    {"equinox", {{2024, 3, 20}, 3, 6, 0, 0}},
}};

const SolarInstant SunOf(const benchmark::State& state) {
    return SolarInstantAt(kSeasons[static_cast<std::size_t>(state.range(1))].universalTime);
}

MapGeometry GeometryOf(const benchmark::State& state) {
    const int width = static_cast<int>(state.range(0));
    return {width, width / 2, 0};
}

void Count(benchmark::State& state, const MapGeometry& geometry) {
    state.SetLabel(kSeasons[static_cast<std::size_t>(state.range(1))].name);
    state.counters["per_pixel"] =
        benchmark::Counter(static_cast<double>(geometry.width) * geometry.height,
                           benchmark::Counter::kIsIterationInvariantRate | benchmark::Counter::kInvert);
}

void BM_AndNightPixels(benchmark::State& state) {
    const MapGeometry geometry = GeometryOf(state);
    const SolarInstant sun = SunOf(state);
    const auto runs = NightRuns(geometry, ComputeBands(geometry, sun), ColumnStep(sun));
    CBitmap map(geometry.width, geometry.height, 0xFFFFFFFFU);
    const std::uint32_t mask = PixelOfColour(kShadow);
    for (auto _ : state) {
        for (const NightRun& run : runs) {
            std::uint32_t* pixels = map.Row(run.row) + run.begin;
            const int count = run.end - run.begin;
            for (int i = 0; i < count; ++i)
                pixels[i] &= mask;
        }
        benchmark::ClobberMemory();
    }
    Count(state, geometry);
}

void BM_ShadeNight(benchmark::State& state) {
    const MapGeometry geometry = GeometryOf(state);
    CBitmap map(geometry.width, geometry.height, 0xFFFFFFFFU);
    const DateTime& time = kSeasons[static_cast<std::size_t>(state.range(1))].universalTime;
    for (auto _ : state) {
        ShadeNight(map, geometry, SolarInstantAt(time), kShadow);
        benchmark::ClobberMemory();
    }
    Count(state, geometry);
}

void BM_ComputeBands(benchmark::State& state) {
    const MapGeometry geometry = GeometryOf(state);
    const SolarInstant sun = SunOf(state);
    for (auto _ : state)
        benchmark::DoNotOptimize(ComputeBands(geometry, sun));
    Count(state, geometry);
}

void Sizes(benchmark::internal::Benchmark* bench) {
    bench->ArgNames({"width", "season"})->ArgsProduct({{240, 1024, 4096}, {0, 1}})->Unit(benchmark::kMicrosecond);
}

BENCHMARK(BM_AndNightPixels)->Apply(Sizes);
BENCHMARK(BM_ShadeNight)->Apply(Sizes);
BENCHMARK(BM_ComputeBands)->Apply(Sizes);

}  // namespace
}  // namespace rlx
