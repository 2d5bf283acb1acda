// One conversion as the page makes it, from the texts of the factors to the text of the result, beside the same
// arithmetic and printf by hand.
#include <benchmark/benchmark.h>

#include <cstdio>
#include <cstdlib>

#include "shell/resources.h"
#include "tools/converter/conversion.h"

namespace rlx {
namespace {

constexpr std::size_t kLengths = 1;
const char* const kFromFactor = "1609.344";
const char* const kToFactor = "0.3048";

UnitTables Lengths() {
    UnitTables tables;
    tables[kLengths] = {{u"mile", u"1609.344"}, {u"foot", u"0.3048"}};
    return tables;
}

void ConvertAndShow(benchmark::State& state) {
    const UnitTables tables = Lengths();
    const CResources texts;
    double value = 1.0;
    for ([[maybe_unused]] auto _ : state)
        benchmark::DoNotOptimize(ResultText(*Convert(value += 0.37, tables, kLengths, 0, 1), texts));
}

void ConvertAlone(benchmark::State& state) {
    const UnitTables tables = Lengths();
    double value = 1.0;
    for ([[maybe_unused]] auto _ : state)
        benchmark::DoNotOptimize(Convert(value += 0.37, tables, kLengths, 0, 1));
}

void PlainConvertAndShow(benchmark::State& state) {
    double value = 1.0;
    char text[40];
    for ([[maybe_unused]] auto _ : state) {
        value += 0.37;
        std::snprintf(text, sizeof text, "%.15g",
                      value * std::strtod(kFromFactor, nullptr) / std::strtod(kToFactor, nullptr));
        benchmark::DoNotOptimize(text);
    }
}

BENCHMARK(ConvertAndShow);
BENCHMARK(ConvertAlone);
BENCHMARK(PlainConvertAndShow);

}  // namespace
}  // namespace rlx
