#include "tools/dialing/dialing.h"

#include "base/text.h"
#include "tools/dialing/dialing_tables.h"

namespace rlx {
namespace {

using enum DialingTable;

TEST(Dialing, FindsTheFirstRowThatBeginsWithTheText) {
    struct {
        DialingTable table;
        std::u16string text;
        std::u16string row;  ///< its cells as shown; empty: nothing is selected
    } const kRows[] = {
        {kInternational, u"ger", u"Germany|+49|+1"},
        {kInternational, u"", u""},
        {kInternational, u" ger", u""},
        {kInternational, u"fort", u""},
        {kUs, u"fort", u"Fort Wayne|Indiana(IN)|+260"},
        {kUs, u"washington, d", u""},
    };
    for (const auto& [table, text, expected] : kRows) {
        const std::optional<std::size_t> row = FindDialingRow(table, text);
        std::u16string shown;
        if (row) {
            const auto cells = DialingCells(table, *row);
            shown = cells[0] + u"|" + cells[1] + u"|" + cells[2];
        }
        EXPECT_EQ(shown, expected) << ToUtf8(text);
    }
}

TEST(Dialing, TablesHoldWhatTheirColumnsPromise) {
    for (const DialingRow& row : InternationalRows()) {
        EXPECT_EQ(row.second.find_first_not_of(u"0123456789 +or"), std::u16string_view::npos) << ToUtf8(row.first);
        EXPECT_TRUE(row.third[0] == u'+' || row.third[0] == u'-') << ToUtf8(row.first);
    }
    std::u16string_view last;
    for (const DialingRow& row : UsRows()) {
        EXPECT_EQ(row.third.size(), 4U) << ToUtf8(row.first);
        EXPECT_EQ(row.second.back(), u')') << ToUtf8(row.first);
        EXPECT_LE(last, row.first);
        last = row.first;
    }
}

}  // namespace
}  // namespace rlx
