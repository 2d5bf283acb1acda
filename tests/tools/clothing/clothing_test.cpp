#include "base/text.h"
#include "tools/clothing/clothing_page.h"
#include "tools/clothing/text_ids.h"

namespace rlx {
namespace {

using enum Garment;
using enum Audience;

TEST(Clothing, SelectionShowsTheTable) {
    struct Step {
        std::optional<Garment> select;
        std::optional<Audience> press;
        TextId title;
        std::optional<Audience> pressed;
    };
    const Step kSteps[] = {
        {{}, {}, kTextSizesMensShoes, kMen},
        {{}, kWomen, kTextSizesWomensShoes, kWomen},
        {kBras, {}, kTextSizesBras, {}},
        {{}, kChildren, kTextSizesBras, {}},
        {kShoes, {}, kTextSizesMensShoes, kMen},
        {kTrousers, kWomen, kTextSizesWomensTrousers, kWomen},
        {kShirtsAndSweaters, {}, kTextSizesMensShirts, kMen},
        {{}, kChildren, kTextSizesChildrensClothing, kChildren},
        {kSuits, kWomen, kTextSizesMensSuits, {}},
    };
    CClothingPage page;
    for (const Step& step : kSteps) {
        if (step.select) page.Select(*step.select);
        if (step.press) page.Press(*step.press);
        EXPECT_EQ(page.Table().title, step.title);
        EXPECT_EQ(page.Pressed(), step.pressed) << step.title;
    }
}

TEST(Clothing, ColumnsOfAllCountriesCorrespond) {
    constexpr std::size_t kColumns[] = {8, 11, 8, 10, 6, 8, 7, 8, 10, 6, 6, 5};
    for (std::size_t i = 0; i < std::size(kColumns); ++i) {
        const SizeTable& table = SizesOf(static_cast<SizeTableId>(i));
        EXPECT_EQ(ColumnsOf(table), kColumns[i]) << i;
        for (const SizeLine& line : table.lines) {
            const bool spans = !line.note.empty();
            const bool ends = table.title == kTextSizesWomensShoes && line.country == u"Japan";  // one column shorter
            const std::size_t last = kColumns[i] - (ends ? 2 : 1);
            EXPECT_EQ(line.cells[last].empty(), spans) << i << " " << ToUtf8(line.country);
        }
    }
}

}  // namespace
}  // namespace rlx
