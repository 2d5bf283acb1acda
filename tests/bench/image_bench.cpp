// A map of 4096x2048 from the shipped picture to a file: each step alone. The floors: copying the pixels once, and
// deflating them at the quickest level without a filter.
#include <benchmark/benchmark.h>
#include <zlib.h>

#include <cstdlib>

#include "platform/bitmap_scale.h"
#include "platform/image/image_codec.h"
#include "platform/posix/posix_file_system.h"

namespace rlx {
namespace {

constexpr int kWidth = 4096;
constexpr int kHeight = 2048;

std::string MapFile() {
    auto bytes = CPosixFileSystem().ReadFile(RLX_MAP_FILE, IImageCodec::kMaxFileSize);
    if (!bytes) std::abort();
    return *std::move(bytes);
}

const CBitmap& LargeMap() {
    static const CBitmap map = Scale(*CImageCodec().Load(MapFile()), kWidth, kHeight);
    return map;
}

void LoadMap(benchmark::State& state) {
    const std::string file = MapFile();
    for ([[maybe_unused]] auto _ : state)
        benchmark::DoNotOptimize(CImageCodec().Load(file));
}

void ScaleMap(benchmark::State& state) {
    const CBitmap map = *CImageCodec().Load(MapFile());
    for ([[maybe_unused]] auto _ : state)
        benchmark::DoNotOptimize(Scale(map, kWidth, kHeight));
}

void CopyMap(benchmark::State& state) {
    for ([[maybe_unused]] auto _ : state)
        benchmark::DoNotOptimize(CBitmap(LargeMap()));
}

void SavePng(benchmark::State& state) {
    std::size_t size = 0;
    for ([[maybe_unused]] auto _ : state)
        size = CImageCodec().SavePng(LargeMap())->size();
    state.counters["bytes"] = static_cast<double>(size);
}

void DeflateAlone(benchmark::State& state) {
    std::string rows;
    for (int y = 0; y < kHeight; ++y) {
        for (int x = 0; x < kWidth; ++x) {
            for (const unsigned shift : {16U, 8U, 0U})
                rows += static_cast<char>(LargeMap().Row(y)[x] >> shift);
        }
    }
    uLongf size = 0;
    std::string packed(compressBound(rows.size()), '\0');
    for ([[maybe_unused]] auto _ : state) {
        size = packed.size();
        compress2(reinterpret_cast<Bytef*>(packed.data()), &size, reinterpret_cast<const Bytef*>(rows.data()),
                  rows.size(), Z_BEST_SPEED);
    }
    state.counters["bytes"] = static_cast<double>(size);
}

BENCHMARK(LoadMap)->Unit(benchmark::kMillisecond);
BENCHMARK(ScaleMap)->Unit(benchmark::kMillisecond);
BENCHMARK(CopyMap)->Unit(benchmark::kMillisecond);
BENCHMARK(SavePng)->Unit(benchmark::kMillisecond);
BENCHMARK(DeflateAlone)->Unit(benchmark::kMillisecond);

}  // namespace
}  // namespace rlx
