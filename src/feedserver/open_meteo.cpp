#include "feedserver/open_meteo.h"

#include <algorithm>
#include <cmath>
#include <nlohmann/json.hpp>
#include <utility>

#include "base/text.h"
#include "weather/feed_fields.h"

namespace rlx {

namespace {

using Json = nlohmann::json;
using Numbers = std::vector<std::optional<double>>;
using Times = std::vector<std::optional<TimeOfDay>>;

/// Arrays and objects within each other beyond this are no forecast.
constexpr int kDeepest = 4;

/// Nothing that weather is measured in comes near; the exact ranges are the feed's.
constexpr double kAbsurd = 10'000;

constexpr std::size_t kLongestReason = 200;

/// Text from outside as it may stand in a log.
std::string Printable(std::string_view text) {
    std::string clean(text.substr(0, kLongestReason));
    std::ranges::replace_if(
        clean, [](char c) { return c < ' ' || c > '~'; }, '?');
    return clean;
}

const Json* Member(const Json& object, const std::string& name) {
    const auto found = object.find(name);
    return found == object.end() ? nullptr : &*found;
}

std::optional<double> NumberOf(const Json* value) {
    if (value == nullptr || !value->is_number()) return std::nullopt;
    const double number = value->get<double>();
    return std::isfinite(number) && std::abs(number) < kAbsurd ? std::optional(number) : std::nullopt;
}

std::optional<int> WholeOf(std::optional<double> number) {
    return number ? std::optional(static_cast<int>(std::lround(*number))) : std::nullopt;
}

/// "2026-11-22T08:14" on that day or in the night after it. What the service writes when the sun does not rise lies on
/// another date.
std::optional<TimeOfDay> TimeOn(const Date& day, const std::string& text) {
    const std::u16string wide = Widen(text);
    if (wide.size() != 16 || wide[10] != u'T') return std::nullopt;
    const std::optional<Date> date = ParseFeedDate(std::u16string_view(wide).substr(0, 10));
    if (!date || (*date != day && *date != AddDays(day, 1))) return std::nullopt;
    return ParseFeedTime(std::u16string_view(wide).substr(11));
}

/// Reads the arrays of one reply. The first fault stays.
class CDailyReader {
public:
    CDailyReader(const Json& daily, const Json* units) : m_daily(daily), m_units(units) { ReadDays(); }

    const std::vector<Date>& Days() const { return m_days; }
    const std::string& Fault() const { return m_fault; }
    bool Has(const std::string& name) const { return m_daily.contains(name); }

    Numbers Read(const std::string& name, std::string_view unit) {
        Numbers numbers(m_days.size());
        const Json* array = Array(name);
        if (array == nullptr) return numbers;
        if (!unit.empty()) CheckUnit(name, unit);
        for (std::size_t i = 0; i < numbers.size(); ++i) {
            const Json& value = (*array)[i];
            if (!value.is_number() && !value.is_null()) Fail(name + " holds a value that is no number");
            numbers[i] = NumberOf(&value);
        }
        return numbers;
    }

    Times ReadTimes(const std::string& name) {
        Times times(m_days.size());
        const Json* array = Array(name);
        if (array == nullptr) return times;
        for (std::size_t i = 0; i < times.size(); ++i) {
            const Json& value = (*array)[i];
            if (!value.is_string() && !value.is_null()) Fail(name + " holds a value that is no time");
            if (value.is_string()) times[i] = TimeOn(m_days[i], value.get_ref<const std::string&>());
        }
        return times;
    }

private:
    void Fail(std::string fault) {
        if (m_fault.empty()) m_fault = std::move(fault);
    }

    void ReadDays() {
        const Json* time = Member(m_daily, "time");
        if (time == nullptr || !time->is_array() || time->empty()) return Fail("no days in daily.time");
        if (time->size() > kMaxForecastDays) return Fail("more than " + std::to_string(kMaxForecastDays) + " days");
        for (const Json& value : *time) {
            const auto day =
                value.is_string() ? ParseFeedDate(Widen(value.get_ref<const std::string&>())) : std::nullopt;
            if (!day) return Fail("daily.time holds a value that is no date");
            if (!m_days.empty() && *day != AddDays(m_days.back(), 1)) return Fail("the days do not follow each other");
            m_days.push_back(*day);
        }
    }

    /// An array with one value for each day; null when the reply does not have it, or after a fault.
    const Json* Array(const std::string& name) {
        const Json* array = Member(m_daily, name);
        if (array == nullptr || !m_fault.empty()) return nullptr;
        if (array->is_array() && array->size() == m_days.size()) return array;
        Fail(name + " does not have one value for each day");
        return nullptr;
    }

    void CheckUnit(const std::string& name, std::string_view unit) {
        const Json* given = m_units == nullptr ? nullptr : Member(*m_units, name);
        if (given == nullptr || !given->is_string()) return Fail("no unit of " + name);
        const std::string& text = given->get_ref<const std::string&>();
        if (text != unit) Fail("the unit of " + name + " is " + Printable(text) + ", not " + Printable(unit));
    }

    const Json& m_daily;
    const Json* m_units;
    std::vector<Date> m_days;
    std::string m_fault;
};

std::vector<ForecastDay> ReadDays(CDailyReader& reader) {
    const Numbers codes = reader.Read(reader.Has("weather_code") ? "weather_code" : "weathercode", "");
    const Numbers highs = reader.Read("temperature_2m_max",
                                      "\xC2\xB0"
                                      "C");
    const Numbers lows = reader.Read("temperature_2m_min",
                                     "\xC2\xB0"
                                     "C");
    const Numbers precipitation = reader.Read("precipitation_sum", "mm");
    const Numbers probabilities = reader.Read("precipitation_probability_max", "%");
    const Numbers winds = reader.Read("wind_speed_10m_max", "km/h");
    const Numbers directions = reader.Read("wind_direction_10m_dominant", "\xC2\xB0");
    const Numbers humidity = reader.Read("relative_humidity_2m_mean", "%");
    const Times rises = reader.ReadTimes("sunrise");
    const Times sets = reader.ReadTimes("sunset");
    std::vector<ForecastDay> days;
    for (std::size_t i = 0; i < reader.Days().size(); ++i) {
        days.push_back({reader.Days()[i], WholeOf(codes[i]), highs[i], lows[i], precipitation[i],
                        WholeOf(probabilities[i]), winds[i], WholeOf(directions[i]), WholeOf(humidity[i]), rises[i],
                        sets[i]});
        // Without a day between them they tell that the sun stays up or down.
        if (rises[i] == sets[i]) days.back().sunrise = days.back().sunset = std::nullopt;
    }
    return days;
}

bool TellsSomething(const ForecastDay& day) {
    return day.code || day.high || day.low;
}

ParsedOpenMeteo Faulty(std::string fault) {
    ParsedOpenMeteo parsed;
    parsed.fault = std::move(fault);
    return parsed;
}

}  // namespace

ParsedOpenMeteo ParseOpenMeteo(std::string_view json) {
    bool tooDeep = false;
    const Json::parser_callback_t shallow = [&tooDeep](int depth, Json::parse_event_t, Json&) {
        tooDeep = tooDeep || depth > kDeepest;
        return !tooDeep;
    };
    const Json document = Json::parse(json, shallow, false);
    if (document.is_discarded() || tooDeep || !document.is_object()) return Faulty("not a JSON object");
    if (const Json* error = Member(document, "error"); error != nullptr && *error == true) {
        const Json* reason = Member(document, "reason");
        const bool told = reason != nullptr && reason->is_string();
        return Faulty("refused: " + (told ? Printable(reason->get_ref<const std::string&>()) : "no reason given"));
    }
    const Json* daily = Member(document, "daily");
    const Json* units = Member(document, "daily_units");
    if (daily == nullptr || !daily->is_object()) return Faulty("no \"daily\" part");
    CDailyReader reader(*daily, units != nullptr && units->is_object() ? units : nullptr);
    Forecast forecast;
    forecast.days = ReadDays(reader);
    if (!reader.Fault().empty()) return Faulty(reader.Fault());
    if (std::ranges::none_of(forecast.days, TellsSomething)) return Faulty("no weather code and no temperature");
    return {std::move(forecast), NumberOf(Member(document, "latitude")), NumberOf(Member(document, "longitude")), {}};
}

}  // namespace rlx
