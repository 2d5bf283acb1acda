// Sunrise and sunset of one place and day: our one pass beside libnova's search, and the Sun's apparent place beside
// libnova's.
#include <benchmark/benchmark.h>
#include <libnova/rise_set.h>
#include <libnova/solar.h>

#include "astro/rise_set.h"
#include "astro/sun_position.h"

namespace rlx {
namespace {

constexpr double kFirstDay = 2460310.5;  // 1 January 2024
constexpr int kYear = 366;

int NextDay(int& day) {
    return day = (day + 1) % kYear;
}

void OurRiseSet(benchmark::State& state) {
    int day = 0;
    for ([[maybe_unused]] auto _ : state)
        benchmark::DoNotOptimize(SunRiseAndSet({2024, 1 + NextDay(day) % 12, 1 + day % 28}, {49, 2, 1.0}));
}

void LibnovaRiseSet(benchmark::State& state) {
    int day = 0;
    ln_lnlat_posn observer{2.0, 49.0};
    ln_rst_time times{};
    for ([[maybe_unused]] auto _ : state)
        benchmark::DoNotOptimize(ln_get_solar_rst(kFirstDay + NextDay(day), &observer, &times));
}

void OurPosition(benchmark::State& state) {
    int day = 0;
    for ([[maybe_unused]] auto _ : state)
        benchmark::DoNotOptimize(SunApparentPositionAt(CenturiesSinceJ2000(kFirstDay + NextDay(day))));
}

void LibnovaPosition(benchmark::State& state) {
    int day = 0;
    ln_equ_posn position{};
    for ([[maybe_unused]] auto _ : state) {
        ln_get_solar_equ_coords(kFirstDay + NextDay(day), &position);
        benchmark::DoNotOptimize(position);
    }
}

BENCHMARK(OurRiseSet);
BENCHMARK(LibnovaRiseSet);
BENCHMARK(OurPosition);
BENCHMARK(LibnovaPosition);

}  // namespace
}  // namespace rlx
