#include "base/text.h"
#include "feedserver/open_meteo.h"
#include "fuzz/target.h"
#include "weather/forecast_reader.h"
#include "weather/forecast_writer.h"

// Any bytes as a reply of the weather source: refused with a reason, or days that a client can read.
void Try(std::string_view bytes) {
    using namespace rlx;
    const ParsedOpenMeteo parsed = ParseOpenMeteo(bytes);
    FailIf(parsed.forecast.has_value() != parsed.fault.empty());
    if (!parsed.forecast) return;
    FailIf(parsed.forecast->days.empty() || parsed.forecast->days.size() > kMaxForecastDays);
    ReadForecast(Widen(WriteForecast(*parsed.forecast)));
}
