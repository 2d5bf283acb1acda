#include <benchmark/benchmark.h>

#include "bench/many_cities.h"
#include "places/city_search.h"

namespace rlx {
namespace {

/// What a person waits for after the first key: the cities are read and searched.
void FirstFind(benchmark::State& state) {
    CManyCities device(static_cast<int>(state.range(0)));
    device.Cities().EnsureCreated();
    for ([[maybe_unused]] auto _ : state) {
        CCityDatabase cities = device.Cities();
        CCitySearch search(cities);
        benchmark::DoNotOptimize(search.Find(u"arc 77"));
    }
}
BENCHMARK(FirstFind)->Arg(1200)->Arg(150000)->Unit(benchmark::kMillisecond);

void NextFind(benchmark::State& state) {
    CManyCities device(static_cast<int>(state.range(0)));
    device.Cities().EnsureCreated();
    CCityDatabase cities = device.Cities();
    CCitySearch search(cities);
    search.Find(u"a");
    for ([[maybe_unused]] auto _ : state)
        benchmark::DoNotOptimize(search.Find(u"arc 77"));
}
BENCHMARK(NextFind)->Arg(1200)->Arg(150000)->Unit(benchmark::kMillisecond);

}  // namespace
}  // namespace rlx
