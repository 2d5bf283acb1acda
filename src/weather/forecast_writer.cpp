#include "weather/forecast_writer.h"

#include <algorithm>
#include <span>

#include "base/number.h"
#include "base/text.h"
#include "weather/feed_fields.h"

namespace rlx {
namespace {

std::u16string Field(std::optional<double> value) {
    return value ? FormatFeedDecimal(*value) : u"";
}

std::u16string Field(std::optional<int> value) {
    return value ? FormatInteger(*value) : u"";
}

std::u16string Field(std::optional<TimeOfDay> value) {
    return value ? FormatFeedTime(*value) : u"";
}

std::u16string Entry(std::u16string_view name, std::u16string_view value) {
    std::u16string entry(name);
    entry.append(u"_").append(value).append(u"#\n");
    return entry;
}

std::u16string DayEntry(const ForecastDay& day) {
    const std::u16string fields[] = {Field(day.code),          Field(day.high),        Field(day.low),
                                     Field(day.precipitation), Field(day.probability), Field(day.windSpeed),
                                     Field(day.windDirection), Field(day.humidity),    Field(day.sunrise),
                                     Field(day.sunset)};
    std::u16string value;
    for (const auto& field : fields)
        value += (&field == fields ? u"" : u";") + field;
    return Entry(FormatFeedDate(day.date), value);
}

}  // namespace

std::string WriteForecast(const Forecast& forecast) {
    const auto days = std::span(forecast.days).first(std::min(forecast.days.size(), kMaxForecastDays));
    auto reply = Entry(u"weather", u"1") + Entry(u"place", FeedText(forecast.placeFeedName)) +
                 Entry(u"source", FeedText(forecast.source)) + Entry(u"issued", FormatFeedInstant(forecast.issued));
    for (const auto& day : days)
        reply += DayEntry(day);
    return Narrow(reply + Entry(u"end", FormatInteger(static_cast<std::int64_t>(days.size()))));
}

}  // namespace rlx
