#include "feedserver/server_config.h"

#include <nlohmann/json.hpp>

#include "base/number.h"
#include "base/text.h"

namespace rlx {

namespace {

using Json = nlohmann::json;

constexpr int kDeepest = 4;
constexpr int kLongestInterval = 7 * 24 * 60;

std::optional<SourceKind> KindOf(const std::string& name, bool rates) {
    if (rates && name == "ecb") return SourceKind::kEcbRates;
    if (rates && name == "daily") return SourceKind::kDailyRates;
    if (!rates && name == "rss") return SourceKind::kRssNews;
    if (!rates && name == "folder") return SourceKind::kNewsFolder;
    return std::nullopt;
}

/// Reads one source; the fault is empty when it is good.
std::string ReadSource(const Json& json, const std::string& where, bool rates, FeedSource& source) {
    if (!json.is_object()) return where + " is no object";
    for (const auto& [key, value] : json.items()) {
        if (key == "kind" || key == "from") {
            if (value.is_string()) continue;
            return std::string(where).append(".").append(key).append(" is no text");
        }
        return std::string(where).append(".").append(key).append(" is not known");
    }
    const std::string kind = json.value("kind", "");
    source.from = json.value("from", "");
    const std::optional<SourceKind> known = KindOf(kind, rates);
    if (!known) return where + ".kind: \"" + kind + "\" is not known; " + (rates ? "ecb, daily" : "rss, folder");
    if (source.from.empty()) return where + ".from is missing";
    source.kind = *known;
    return {};
}

std::string ReadRates(const Json& json, ServerConfig& config) {
    if (!json.is_array()) return "rates is no list";
    for (std::size_t i = 0; i < json.size(); ++i) {
        FeedSource source;
        std::string fault = ReadSource(json[i], "rates[" + std::to_string(i) + "]", true, source);
        if (!fault.empty()) return fault;
        config.rates.push_back(std::move(source));
    }
    return {};
}

std::optional<WeatherKind> WeatherKindOf(const std::string& name) {
    if (name == "open-meteo") return WeatherKind::kOpenMeteo;
    if (name == "folder") return WeatherKind::kFolder;
    if (name == "sample") return WeatherKind::kSample;
    if (name == "none") return WeatherKind::kNone;
    return std::nullopt;
}

std::string ReadWeather(const Json& json, WeatherConfig& weather) {
    if (!json.is_object()) return "weather is no object";
    for (const auto& [key, value] : json.items()) {
        if (key != "kind" && key != "from" && key != "sample") return "weather." + key + " is not known";
        if (key == "sample" ? !value.is_boolean() : !value.is_string())
            return "weather." + key + (key == "sample" ? " is neither true nor false" : " is no text");
    }
    const std::string kind = json.value("kind", "");
    const std::optional<WeatherKind> known = WeatherKindOf(kind);
    if (!known) return "weather.kind: \"" + kind + "\" is not known; open-meteo, folder, sample, none";
    const bool web = *known == WeatherKind::kOpenMeteo;
    weather = {*known, json.value("from", web ? kPublicWeather : ""), json.value("sample", false)};
    if (*known == WeatherKind::kFolder && weather.from.empty()) return "weather.from is missing";
    for (const char* part : {"{latitude}", "{longitude}"}) {
        if (web && weather.from.find(part) == std::string::npos) return std::string("weather.from lacks ") + part;
    }
    if (web && !weather.from.starts_with("http://") && !weather.from.starts_with("https://"))
        return "weather.from is no web address";
    return {};
}

std::string ReadMember(const std::string& key, const Json& value, ServerConfig& config) {
    if (key == "rates") return ReadRates(value, config);
    if (key == "news") return ReadSource(value, "news", false, config.news.emplace());
    if (key == "weather") return ReadWeather(value, config.weather);
    if (key == "keep") {
        if (!value.is_string()) return "keep is no text";
        config.keep = value.get<std::string>();
        return {};
    }
    if (key != "everyMinutes") return key + " is not known; rates, news, weather, everyMinutes, keep";
    if (!value.is_number_integer() || value < 1 || value > kLongestInterval)
        return "everyMinutes must be a whole number from 1 to " + std::to_string(kLongestInterval);
    config.every = std::chrono::minutes(value.get<int>());
    return {};
}

}  // namespace

ParsedConfig ParseServerConfig(std::string_view json) {
    bool tooDeep = false;
    const Json::parser_callback_t shallow = [&tooDeep](int depth, Json::parse_event_t, Json&) {
        tooDeep = tooDeep || depth > kDeepest;
        return !tooDeep;
    };
    const Json document = Json::parse(json, shallow, false);
    if (document.is_discarded() || tooDeep || !document.is_object()) return {std::nullopt, "not a JSON object"};
    ServerConfig config;
    for (const auto& [key, value] : document.items()) {
        std::string fault = ReadMember(key, value, config);
        if (!fault.empty()) return {std::nullopt, std::move(fault)};
    }
    return {std::move(config), {}};
}

std::optional<ListenAddress> ParseListenAddress(std::string_view text) {
    const std::size_t colon = text.rfind(':');
    if (colon == std::string_view::npos) return std::nullopt;
    std::string_view host = text.substr(0, colon);
    if (host.starts_with('[') && host.ends_with(']')) host = host.substr(1, host.size() - 2);
    const auto port = ParseWholeInteger(Widen(text.substr(colon + 1)), 0, 65535);
    if (host.empty() || !port) return std::nullopt;
    return ListenAddress{std::string(host), static_cast<std::uint16_t>(*port)};
}

}  // namespace rlx
