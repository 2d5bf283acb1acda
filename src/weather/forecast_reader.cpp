#include "weather/forecast_reader.h"

#include <algorithm>
#include <cmath>
#include <vector>

#include "base/number.h"
#include "base/text.h"
#include "weather/feed_fields.h"

namespace rlx {
namespace {

// The extremes of the world's records (World Meteorological Organization), with some room: -89.2 and 56.7 degrees,
// 1,825 mm in a day, 408 km/h.
constexpr double kLowestTemperature = -95;
constexpr double kHighestTemperature = 65;
constexpr double kMostPrecipitation = 2000;
constexpr double kStrongestWind = 420;

constexpr std::size_t kDayFields = 10;

/// The parts of a reply as they come in.
struct Draft {
    Forecast forecast;
    std::vector<std::u16string_view> seen;
    std::optional<DateTime> issued;
    std::optional<std::int64_t> promisedDays;
};

std::optional<int> Whole(std::optional<double> value) {
    if (!value) return {};
    return static_cast<int>(std::lround(*value));
}

ForecastDay DayOf(const Date& date, const std::vector<std::u16string>& fields) {
    ForecastDay day;
    day.date = date;
    if (const auto code = ParseWholeInteger(fields[0], 0, 99)) day.code = static_cast<int>(*code);
    day.high = ParseFeedDecimal(fields[1], kLowestTemperature, kHighestTemperature);
    day.low = ParseFeedDecimal(fields[2], kLowestTemperature, kHighestTemperature);
    day.precipitation = ParseFeedDecimal(fields[3], 0, kMostPrecipitation);
    day.probability = Whole(ParseFeedDecimal(fields[4], 0, 100));
    day.windSpeed = ParseFeedDecimal(fields[5], 0, kStrongestWind);
    day.windDirection = Whole(ParseFeedDecimal(fields[6], 0, 360));
    day.humidity = Whole(ParseFeedDecimal(fields[7], 0, 100));
    day.sunrise = ParseFeedTime(fields[8]);
    day.sunset = ParseFeedTime(fields[9]);
    if (day.windDirection == 360) day.windDirection = 0;
    if (day.high && day.low && *day.low > *day.high) {
        day.high.reset();
        day.low.reset();
    }
    return day;
}

ReplyFault AddDay(Draft& draft, const Date& date, std::u16string_view value) {
    auto& days = draft.forecast.days;
    if (!days.empty() && date != AddDays(days.back().date, 1)) return ReplyFault::kBadDate;
    if (days.size() == kMaxForecastDays) return ReplyFault::kTooManyDays;
    const auto fields = Split(value, u';');
    if (fields.size() < kDayFields) return ReplyFault::kBadEntry;
    days.push_back(DayOf(date, fields));
    return ReplyFault::kNone;
}

ReplyFault AddEntry(Draft& draft, std::u16string_view entry) {
    const auto underscore = entry.find(u'_');
    if (underscore == std::u16string_view::npos) return ReplyFault::kBadEntry;
    const auto name = entry.substr(0, underscore);
    const auto value = entry.substr(underscore + 1);
    if (draft.seen.empty() && entry != u"weather_1") return ReplyFault::kNotAForecast;
    if (draft.promisedDays) return ReplyFault::kBadEntry;
    if (const auto date = ParseFeedDate(name)) return AddDay(draft, *date, value);
    if (std::ranges::find(draft.seen, name) != draft.seen.end()) return ReplyFault::kBadEntry;
    draft.seen.push_back(name);
    if (name == u"place") draft.forecast.placeFeedName = FeedText(value);
    if (name == u"source") draft.forecast.source = FeedText(value);
    if (name == u"issued") draft.issued = ParseFeedInstant(value);
    if (name == u"end") draft.promisedDays = ParseWholeInteger(value, 0, 1000).value_or(-1);
    return ReplyFault::kNone;
}

bool TellsSomething(const ForecastDay& day) {
    return day.code || day.high || day.low;
}

ReplyFault FaultOf(const Draft& draft) {
    const auto& forecast = draft.forecast;
    if (draft.promisedDays != static_cast<std::int64_t>(forecast.days.size())) return ReplyFault::kTruncated;
    // What a server says that has no forecast at all: then nobody made one at any time.
    if (forecast.days.empty()) return ReplyFault::kNoValues;
    if (!draft.issued || forecast.source.empty() || forecast.placeFeedName.empty()) return ReplyFault::kBadHeader;
    if (std::ranges::none_of(forecast.days, TellsSomething)) return ReplyFault::kNoValues;
    const auto ahead = DayNumber(forecast.days.front().date) - DayNumber(draft.issued->date);
    if (std::abs(ahead) > static_cast<std::int64_t>(kMaxForecastDays)) return ReplyFault::kBadDate;
    return ReplyFault::kNone;
}

bool MayStandInAReply(char16_t c) {
    return (c >= u' ' && c <= u'~') || c == u'\n' || c == u'\r';
}

ReplyFault ReadEntries(Draft& draft, std::u16string_view rest) {
    constexpr std::u16string_view kLineEnds = u"\r\n";
    for (;;) {
        rest.remove_prefix(std::min(rest.find_first_not_of(kLineEnds), rest.size()));
        if (rest.empty()) return draft.seen.empty() ? ReplyFault::kNotAForecast : ReplyFault::kNone;
        const auto hash = rest.find(u'#');
        if (hash == std::u16string_view::npos)
            return draft.seen.empty() ? ReplyFault::kNotAForecast : ReplyFault::kTruncated;
        const auto fault = AddEntry(draft, rest.substr(0, hash));
        if (fault != ReplyFault::kNone) return fault;
        rest.remove_prefix(hash + 1);
    }
}

}  // namespace

ForecastReading ReadForecast(std::u16string_view reply) {
    if (reply.size() > kMaxReplyLength) return {{}, ReplyFault::kTooLong};
    if (!std::ranges::all_of(reply, MayStandInAReply)) return {{}, ReplyFault::kNotAscii};
    Draft draft;
    auto fault = ReadEntries(draft, reply);
    if (fault == ReplyFault::kNone) fault = FaultOf(draft);
    if (fault != ReplyFault::kNone) return {{}, fault};
    draft.forecast.issued = *draft.issued;
    return {std::move(draft.forecast), ReplyFault::kNone};
}

}  // namespace rlx
