#include "base/text.h"
#include "fuzz/target.h"
#include "weather/forecast_reader.h"
#include "weather/forecast_writer.h"

// What the reader takes must come back the same after it was written, apart from the rounding of the first writing.
void Try(std::string_view bytes) {
    using namespace rlx;
    const auto reading = ReadForecast(Widen(bytes));
    if (!reading.forecast) return;
    const auto once = ReadForecast(Widen(WriteForecast(*reading.forecast)));
    FailIf(!once.forecast);
    const auto twice = ReadForecast(Widen(WriteForecast(*once.forecast)));
    FailIf(twice.forecast != once.forecast);
}
