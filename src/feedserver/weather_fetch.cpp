#include "feedserver/weather_fetch.h"

#include <chrono>
#include <cmath>
#include <filesystem>
#include <system_error>
#include <utility>

#include "base/iso_day.h"
#include "base/number.h"
#include "base/text.h"
#include "feedserver/open_meteo.h"
#include "weather/forecast_reader.h"
#include "weather/forecast_writer.h"

namespace rlx {

namespace {

void ReplaceAll(std::string& text, std::string_view mark, const std::string& value) {
    for (std::size_t at = text.find(mark); at != std::string::npos; at = text.find(mark, at + value.size()))
        text.replace(at, mark.size(), value);
}

std::string PercentEncoded(std::string_view text) {
    constexpr std::string_view kDigits = "0123456789ABCDEF";
    std::string encoded;
    for (const char each : text) {
        const auto byte = static_cast<unsigned char>(each);
        const bool plain = (each >= 'a' && each <= 'z') || (each >= 'A' && each <= 'Z') ||
                           (each >= '0' && each <= '9') || each == '-' || each == '_';
        if (plain) {
            encoded.push_back(each);
        } else {
            encoded.append({'%', kDigits[byte >> 4], kDigits[byte & 0xF]});
        }
    }
    return encoded;
}

std::string HostOf(const std::string& address) {
    const std::size_t begin = address.find("://") + 3;
    const std::string host = address.substr(begin, address.find_first_of("/?:", begin) - begin);
    return host.substr(host.find('@') + 1);
}

/// The credit that the licence of the data asks for.
std::u16string SourceText(const WeatherConfig& config) {
    constexpr char kCredit[] = "Open-Meteo.com (CC BY 4.0)";
    if (config.kind == WeatherKind::kFolder) return Widen(std::string(kCredit) + ", recorded");
    const std::string host = HostOf(config.from);
    return Widen(host.ends_with("open-meteo.com") ? kCredit : kCredit + (" by " + host));
}

DateTime ChangeTime(const std::string& file, const DateTime& otherwise) {
    std::error_code error;
    const auto changed = std::filesystem::last_write_time(file, error);
    if (error) return otherwise;
    const auto sinceEpoch = std::chrono::file_clock::to_sys(changed).time_since_epoch();
    return DateTimeOfSecondNumber(std::chrono::duration_cast<std::chrono::seconds>(sinceEpoch).count());
}

std::string FaultOfPosition(const ParsedOpenMeteo& parsed, const ForecastCity& city) {
    const bool near = std::abs(parsed.latitude.value_or(city.latitude) - city.latitude) <= 1 &&
                      std::abs(std::remainder(parsed.longitude.value_or(city.longitude) - city.longitude, 360)) <= 1;
    return near ? "" : "a forecast of another position";
}

std::string FaultOfDays(const Forecast& forecast, const Date& today) {
    // The calendars of the world lie within a day of UTC's.
    if (DayNumber(forecast.days.front().date) > DayNumber(today) + 2)
        return "a forecast from " + Narrow(IsoDay(forecast.days.front().date)) + " on, which is in the future";
    if (DayNumber(forecast.days.back().date) < DayNumber(today) - 1)
        return "a forecast up to " + Narrow(IsoDay(forecast.days.back().date)) + ", which is past";
    return {};
}

FetchedForecast Faulty(std::string fault, bool reached = true) {
    return {std::nullopt, std::move(fault), reached};
}

}  // namespace

std::string ForecastAddress(const WeatherConfig& config, const ForecastCity& city) {
    if (config.kind == WeatherKind::kFolder)
        return (std::filesystem::path(config.from) / (city.feedName + ".json")).string();
    std::string address = config.from;
    ReplaceAll(address, "{latitude}", Narrow(FormatFixed(city.latitude, 4)));
    ReplaceAll(address, "{longitude}", Narrow(FormatFixed(city.longitude, 4)));
    ReplaceAll(address, "{timezone}", PercentEncoded(city.zone));
    return address;
}

FetchedForecast FetchForecast(const WeatherConfig& config, const ForecastCity& city, const WeatherReader& reader,
                              const std::atomic<bool>& stop, const DateTime& utcNow) {
    const std::string address = ForecastAddress(config, city);
    const SourceBytes read = reader(address, stop);
    ParsedOpenMeteo parsed = ParseOpenMeteo(read.bytes ? *read.bytes : read.refusal);
    // A refusal comes with a status of its own; the reason in its body tells more.
    if (!read.bytes) {
        const bool told = parsed.fault.starts_with("refused: ");
        return Faulty(told ? read.fault + ", " + parsed.fault : read.fault, read.reached);
    }
    if (!parsed.forecast) return Faulty(std::move(parsed.fault));
    std::string fault = FaultOfPosition(parsed, city);
    if (fault.empty()) fault = FaultOfDays(*parsed.forecast, utcNow.date);
    if (!fault.empty()) return Faulty(std::move(fault));
    Forecast& forecast = *parsed.forecast;
    forecast.source = SourceText(config);
    forecast.issued = config.kind == WeatherKind::kFolder ? ChangeTime(address, utcNow) : utcNow;
    forecast.placeFeedName = Widen(city.feedName);
    ForecastReading reading = ReadForecast(Widen(WriteForecast(forecast)));
    if (!reading.forecast) return Faulty("values or dates that no client would take");
    return {std::move(reading.forecast), {}, true};
}

}  // namespace rlx
