#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <string_view>

#include "base/text.h"
#include "weather/forecast_reader.h"
#include "weather/forecast_writer.h"

// What the reader takes must come back the same after it was written, apart from the rounding of the first writing.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    using namespace rlx;
    const auto reading = ReadForecast(Widen({reinterpret_cast<const char*>(data), size}));
    if (!reading.forecast) return 0;
    const auto once = ReadForecast(Widen(WriteForecast(*reading.forecast)));
    if (!once.forecast) std::abort();
    const auto twice = ReadForecast(Widen(WriteForecast(*once.forecast)));
    if (twice.forecast != once.forecast) std::abort();
    return 0;
}
