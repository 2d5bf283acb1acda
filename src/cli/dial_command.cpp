#include <array>
#include <memory>

#include "base/text.h"
#include "cli/commands.h"
#include "shell/text_ids.h"
#include "tools/dialing/dialing.h"

namespace rlx::cli {

namespace {

constexpr std::array kTableNames = {"intl", "us"};

struct DialWords {
    std::string first;
    std::string second;
};

std::optional<DialingTable> TableNamed(const std::string& word) {
    for (std::size_t i = 0; i < kTableNames.size(); ++i) {
        if (word == kTableNames[i]) return static_cast<DialingTable>(i);
    }
    return std::nullopt;
}

std::vector<std::u16string> RowOf(DialingTable table, std::size_t row) {
    const auto cells = DialingCells(table, row);
    return {cells.begin(), cells.end()};
}

/// The JSON object has the whole table; a person who looks for a name sees the row found.
int Show(CSession& session, CAnswer& answer, DialingTable table, const std::u16string& text) {
    Json columns = Json::array();
    for (const TextId id : DialingColumns(table))
        columns.push_back(ToJson(session.Text(id)));
    const auto selected = FindDialingRow(table, text);
    Json rows = Json::array();
    std::vector<std::vector<std::u16string>> lines;
    for (std::size_t row = 0; row < DialingRowCount(table); ++row) {
        std::vector<std::u16string> cells = RowOf(table, row);
        rows.push_back(ToJson(cells));
        if (text.empty() || selected == row) lines.push_back(std::move(cells));
    }
    answer.Set("columns", std::move(columns));
    answer.Set("rows", std::move(rows));
    answer.Set("selected", selected ? Json(*selected) : Json(nullptr));
    if (lines.empty()) {
        answer.Line(session.Text(kTextNothingFound));
    } else {
        answer.Table(lines);
    }
    return kDone;
}

}  // namespace

void DeclareDial(CLI::App& app, const SetAction& setAction) {
    auto words = std::make_shared<DialWords>();
    app.add_option("TABLE", words->first, "intl (the usual one) or us; may be left out");
    app.add_option("TEXT", words->second, "beginning of a country or city");
    app.callback([setAction, words] {
        const auto named = TableNamed(words->first);
        if (!named && !words->second.empty())
            throw CLI::ValidationError("TABLE", "\"" + words->first + "\" is neither intl nor us");
        const std::u16string text = FromUtf8(named ? words->second : words->first);
        const DialingTable table = named.value_or(DialingTable::kInternational);
        setAction([table, text](CSession& s, CAnswer& a) { return Show(s, a, table, text); });
    });
}

}  // namespace rlx::cli
