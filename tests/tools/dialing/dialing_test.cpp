#include "tools/dialing/dialing.h"

#include <gtest/gtest.h>

#include <set>

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
        {kInternational, u"AFG", u"Afghanistan|+93|+4.5"},
        {kInternational, u"zim", u"Zimbabwe|+263|+2"},
        {kInternational, u"bermuda", u"Bermuda|+1 +441 or 809|-4"},
        {kInternational, u"antig", u"Antigua and Barbuda|+1 268|-4"},
        {kInternational, u"cocos", u"Cocos Islands|+672|+x"},
        {kInternational, u"chatham", u"Chatham Island (New Zealand)|+64|+0"},
        {kInternational, u"u.s", u"U.S. Virgin Islands|+340|+1"},
        {kInternational, u"", u""},
        {kInternational, u" ger", u""},
        {kInternational, u"many", u""},
        {kInternational, u"Germany and more", u""},
        {kInternational, u"+49", u""},
        {kInternational, u"fort", u""},
        {kUs, u"fort", u"Fort Wayne|Indiana(IN)|+260"},
        {kUs, u"dallas", u"Dallas|Texas(TX)|+972"},
        {kUs, u"washington, d", u""},
        {kUs, u"wyo", u"Wyoming|Wyoming(WY)|+307"},
        {kUs, u"akron", u"Akron|Ohio(OH)|+330"},
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
    std::multiset<std::u16string_view> unknown;
    for (const DialingRow& row : InternationalRows()) {
        EXPECT_EQ(row.second.find_first_not_of(u"0123456789 +or"), std::u16string_view::npos) << ToUtf8(row.first);
        EXPECT_TRUE(row.third[0] == u'+' || row.third[0] == u'-') << ToUtf8(row.first);
        if (row.third == u"+x") unknown.insert(row.first);
    }
    EXPECT_EQ(unknown, (std::multiset<std::u16string_view>{u"Cocos Islands", u"Comoros", u"Diego Garcia",
                                                           u"Fyrom (Macedonia)"}));
    std::u16string_view last;
    for (const DialingRow& row : UsRows()) {
        EXPECT_EQ(row.third.size(), 4U) << ToUtf8(row.first);
        EXPECT_EQ(row.second.back(), u')') << ToUtf8(row.first);
        EXPECT_LE(last, row.first);
        last = row.first;
    }
}

TEST(Dialing, ColumnWidthsAreWholeNumbers) {
    EXPECT_EQ(DialingColumnWidths(kInternational, 237), (std::array{108, 62, 49}));
    EXPECT_EQ(DialingColumnWidths(kUs, 237), (std::array{84, 84, 49}));
    EXPECT_EQ(DialingColumnWidths(kInternational, 96), (std::array{44, 25, 19}));
}

}  // namespace
}  // namespace rlx
