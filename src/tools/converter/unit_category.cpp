#include "tools/converter/unit_category.h"

#include "base/text.h"
#include "tools/converter/text_ids.h"

namespace rlx {

namespace {

struct Category {
    TextId name;
    std::u16string_view suffix;
    std::span<const SeedUnit> (*seed)();
};

constexpr std::array<Category, kCategoryCount> kCategories = {{
    {kTextCategoryAreas, u"/m²", SeedAreas},
    {kTextCategoryLengths, u"/m", SeedLengths},
    {kTextCategoryPressures, u"/pascal", SeedPressures},
    {kTextCategorySpeeds, u"/(m/s)", SeedSpeeds},
    {kTextCategoryTemperatures, u"", SeedTemperatures},
    {kTextCategoryVolumes, u"/kl", SeedVolumes},
    {kTextCategoryWeights, u"/kg", SeedWeights},
}};

}  // namespace

std::u16string CategoryCode(std::size_t category) {
    return std::u16string(1, static_cast<char16_t>(u'0' + category));
}

std::u16string CategoryName(std::size_t category, const ITexts& texts) {
    return texts.Text(kCategories.at(category).name);
}

std::u16string_view ValueSuffix(std::size_t category) {
    return kCategories.at(category).suffix;
}

std::span<const SeedUnit> SeedUnits(std::size_t category) {
    return kCategories.at(category).seed();
}

std::optional<std::size_t> FindCategory(std::u16string_view text, const ITexts& texts) {
    std::optional<std::size_t> found;
    if (text.empty()) return found;
    for (std::size_t category = 0; category < kCategoryCount; ++category) {
        const std::u16string name = CategoryName(category, texts);
        if (text == CategoryCode(category) || EqualIgnoringCase(text, name)) return category;
        if (!BeginsIgnoringCase(name, text)) continue;
        if (found) return std::nullopt;
        found = category;
    }
    return found;
}

}  // namespace rlx
