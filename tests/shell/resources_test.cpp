#include "shell/resources.h"

#include <set>

#include "base/text.h"
#include "shell/fill_text.h"
#include "shell/text_ids.h"
#include "support/numbered_names.h"
#include "tools/converter/text_ids.h"
#include "weather/text_ids.h"

namespace rlx {
namespace {

TEST(ResourcesTest, EveryNumberedTextIsThereAndNumberedOnce) {
    const CResources resources;
    const auto names = test::NumberedNames("text_ids.h", "kText");
    ASSERT_GT(names.size(), 250U);
    std::set<int> seen;
    for (const auto& [name, number] : names) {
        EXPECT_NE(resources.Text(number), u"") << name;
        EXPECT_TRUE(seen.insert(number).second) << name << " takes a number that is taken";
    }
}

TEST(ResourcesTest, TextsAreReadUnitByUnit) {
    const struct {
        const char* name;
        int id;
        const char16_t* text;
    } rows[] = {
        {"leading and trailing blank", kTextUnitAfter, u" > Unit?"},
        {"ends with a blank", kTextDeleteBefore, u"Delete < "},
        {"beyond ASCII", kTextDegreesCelsius, u"%1 °C"},
        {"last of its block", 32927, u""},
        {"no such block", 39000, u""},
        {"beyond the table", 65536 + kTextError, u""},
    };
    const CResources resources;
    for (const auto& row : rows)
        EXPECT_EQ(ToUtf8(resources.Text(row.id)), ToUtf8(row.text)) << row.name;
}

TEST(FillTextTest, MarksTakeTheirValuesOnce) {
    const struct {
        const char* name;
        std::u16string_view pattern;
        const char16_t* filled;
    } rows[] = {
        {"one", u"<%1>", u"<%2>"},        {"other order, and twice", u"%2, %1, %2", u"b, %2, b"},
        {"no value", u"%3 %9", u"%3 %9"}, {"per cent", u"0% and 100%", u"0% and 100%"},
        {"doubled", u"%%1%", u"%%2%"},    {"nothing", u"", u""},
    };
    // The first value looks like a mark itself.
    for (const auto& row : rows)
        EXPECT_EQ(ToUtf8(FillText(row.pattern, {u"%2", u"b"})), ToUtf8(row.filled)) << row.name;
}

}  // namespace
}  // namespace rlx
