#include "tools/dialing/dialing.h"

#include <algorithm>

#include "base/text.h"
#include "tools/dialing/dialing_tables.h"
#include "tools/dialing/text_ids.h"

namespace rlx {

namespace {

std::span<const DialingRow> Rows(DialingTable table) {
    return table == DialingTable::kUs ? UsRows() : InternationalRows();
}

}  // namespace

TextId DialingTableName(DialingTable table) {
    return table == DialingTable::kUs ? kTextUsAreaCodes : kTextInternationalCodes;
}

std::array<TextId, kDialingColumns> DialingColumns(DialingTable table) {
    if (table == DialingTable::kUs) return {kTextColumnCity, kTextColumnRegion, kTextColumnCode};
    return {kTextColumnCountry, kTextColumnCode, kTextColumnGmt};
}

std::array<int, kDialingColumns> DialingColumnWidths(DialingTable table, int fontFactor) {
    const int width = fontFactor + 3;
    const int last = width * 21 / 100 - 1;
    if (table == DialingTable::kUs) return {width * 35 / 100, width * 35 / 100, last};
    return {width * 45 / 100, width * 26 / 100, last};
}

std::size_t DialingRowCount(DialingTable table) {
    return Rows(table).size();
}

std::array<std::u16string, kDialingColumns> DialingCells(DialingTable table, std::size_t row) {
    const DialingRow& cells = Rows(table)[row];
    const std::u16string plus = table == DialingTable::kInternational ? u"+" : u"";
    return {std::u16string(cells.first), std::u16string(plus).append(cells.second), std::u16string(cells.third)};
}

std::optional<std::size_t> FindDialingRow(DialingTable table, std::u16string_view text) {
    if (text.empty()) return std::nullopt;
    const std::span<const DialingRow> rows = Rows(table);
    const auto at =
        std::ranges::find_if(rows, [text](const DialingRow& row) { return BeginsIgnoringCase(row.first, text); });
    if (at == rows.end()) return std::nullopt;
    return static_cast<std::size_t>(at - rows.begin());
}

}  // namespace rlx
