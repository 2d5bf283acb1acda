#include <algorithm>
#include <cmath>
#include <nlohmann/json.hpp>

#include "base/iso_day.h"
#include "base/text.h"
#include "feedserver/rates_table.h"

namespace rlx {

namespace {

/// Arrays and objects within each other beyond this are no table.
constexpr int kDeepest = 4;

/// Three letters in capitals; empty for any other key.
std::string CodeOf(const std::string& key) {
    if (key.size() != 3) return {};
    std::string code = key;
    for (char& each : code) {
        if (each >= 'a' && each <= 'z') each = static_cast<char>(each & ~0x20);
        if (each < 'A' || each > 'Z') return {};
    }
    return code;
}

}  // namespace

ParsedRates ParseDailyRates(std::string_view json) {
    using Json = nlohmann::json;
    bool tooDeep = false;
    const Json::parser_callback_t shallow = [&tooDeep](int depth, Json::parse_event_t, Json&) {
        tooDeep = tooDeep || depth > kDeepest;
        return !tooDeep;
    };
    const Json document = Json::parse(json, shallow, false);
    if (document.is_discarded() || tooDeep || !document.is_object()) return {std::nullopt, "not a JSON object"};
    const auto day = document.find("date");
    const auto rates = document.find("usd");
    if (day == document.end() || !day->is_string()) return {std::nullopt, "no \"date\""};
    if (rates == document.end() || !rates->is_object()) return {std::nullopt, "no \"usd\" table"};
    const std::optional<Date> date = ParseIsoDay(Widen(day->get_ref<const std::string&>()));
    if (!date) return {std::nullopt, "\"date\" is no date"};
    RatesTable table{*date, "daily", {}};
    for (const auto& [key, value] : rates->items()) {
        const std::string code = CodeOf(key);
        if (code.empty() || !value.is_number()) continue;
        const double rate = value.get<double>();
        if (std::isfinite(rate) && rate > 0) table.perDollar[code] = rate;
    }
    return {std::move(table), {}};
}

}  // namespace rlx
