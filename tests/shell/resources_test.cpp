#include "shell/resources.h"

#include <set>

#include "base/text.h"
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

}  // namespace
}  // namespace rlx
