#include <cmath>
#include <cstring>
#include <pugixml.hpp>

#include "base/iso_day.h"
#include "base/number.h"
#include "base/text.h"
#include "feedserver/rates_table.h"

namespace rlx {

namespace {

/// The name without its namespace prefix.
bool IsCube(const pugi::xml_node& node) {
    const char* colon = std::strrchr(node.name(), ':');
    return std::strcmp(colon == nullptr ? node.name() : colon + 1, "Cube") == 0;
}

/// The first "Cube" with a date, in document order.
struct FirstDay : pugi::xml_tree_walker {
    pugi::xml_node day;
    bool for_each(pugi::xml_node& node) override {
        if (IsCube(node) && node.attribute("time")) day = node;
        return !day;
    }
};

bool IsCode(const std::string& code) {
    return code.size() == 3 && code.find_first_not_of("ABCDEFGHIJKLMNOPQRSTUVWXYZ") == std::string::npos;
}

}  // namespace

ParsedRates ParseEcbRates(std::string_view xml) {
    pugi::xml_document document;
    const pugi::xml_parse_result result = document.load_buffer(xml.data(), xml.size(), pugi::parse_minimal);
    if (!result) return {std::nullopt, std::string("not XML: ") + result.description()};
    FirstDay first;
    document.traverse(first);
    if (!first.day) return {std::nullopt, "no Cube with a time"};
    const std::optional<Date> date = ParseIsoDay(Widen(first.day.attribute("time").value()));
    if (!date) return {std::nullopt, "the time of the Cube is no date"};
    RatesTable table{*date, "ecb", {{"EUR", 1.0}}};
    for (const pugi::xml_node& node : first.day.children()) {
        const std::string code = node.attribute("currency").value();
        const double rate = ParseNumber(Widen(node.attribute("rate").value()));
        if (IsCube(node) && IsCode(code) && std::isfinite(rate) && rate > 0) table.perDollar[code] = rate;
    }
    const auto dollar = table.perDollar.find("USD");
    if (dollar == table.perDollar.end()) return {std::nullopt, "no rate of the US dollar"};
    const double perEuro = dollar->second;
    for (auto& [code, rate] : table.perDollar)
        rate /= perEuro;
    return {std::move(table), {}};
}

}  // namespace rlx
