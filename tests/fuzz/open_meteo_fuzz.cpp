#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <string_view>

#include "base/text.h"
#include "feedserver/open_meteo.h"
#include "weather/forecast_reader.h"
#include "weather/forecast_writer.h"

// Any bytes as a reply of the weather source: refused with a reason, or days that a client can read.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    using namespace rlx;
    ParsedOpenMeteo parsed = ParseOpenMeteo({reinterpret_cast<const char*>(data), size});
    if (parsed.forecast.has_value() != parsed.fault.empty()) std::abort();
    if (!parsed.forecast) return 0;
    if (parsed.forecast->days.empty() || parsed.forecast->days.size() > kMaxForecastDays) std::abort();
    ReadForecast(Widen(WriteForecast(*parsed.forecast)));
    return 0;
}
