#include "shell/fill_text.h"

#include "base/text.h"

namespace rlx {
namespace {

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
