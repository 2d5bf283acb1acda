#include "tools/clothing/clothing_page.h"

#include <array>

#include "base/number.h"
#include "base/text.h"
#include "tools/clothing/text_ids.h"

namespace rlx {

namespace {

struct GarmentTables {
    TextId name;
    bool hasAudiences;
    std::array<SizeTableId, kAudienceCount> tables;  ///< men, women, children
};

constexpr std::array<SizeTableId, kAudienceCount> Only(SizeTableId id) {
    return {id, id, id};
}

using enum SizeTableId;
constexpr std::array<GarmentTables, kGarmentCount> kGarments = {{
    {kTextBras, false, Only(kBras)},
    {kTextDresses, false, Only(kDresses)},
    {kTextShirts, true, {kMensShirts, kWomensBlouses, kChildrensClothing}},
    {kTextShoes, true, {kMensShoes, kWomensShoes, kChildrensShoes}},
    {kTextSuits, false, Only(kSuits)},
    {kTextTrousers, true, {kMensTrousers, kWomensTrousers, kChildrensTrousers}},
}};

const GarmentTables& TablesOf(Garment garment) {
    return kGarments[static_cast<std::size_t>(garment)];
}

}  // namespace

TextId GarmentName(Garment garment) {
    return TablesOf(garment).name;
}

TextId AudienceName(Audience audience) {
    constexpr std::array<TextId, kAudienceCount> kNames = {kTextMen, kTextWomen, kTextChildren};
    return kNames[static_cast<std::size_t>(audience)];
}

std::optional<Garment> FindGarment(std::u16string_view text, const ITexts& texts) {
    std::optional<Garment> found;
    if (text.empty()) return found;
    for (std::size_t i = 0; i < kGarmentCount; ++i) {
        const Garment garment = static_cast<Garment>(i);
        const std::u16string name = texts.Text(GarmentName(garment));
        if (text == FormatInteger(static_cast<int>(i)) || EqualIgnoringCase(text, name)) return garment;
        if (!BeginsIgnoringCase(name, text)) continue;
        if (found) return std::nullopt;
        found = garment;
    }
    return found;
}

void CClothingPage::Select(Garment garment) {
    m_garment = garment;
    m_audience = Audience::kMen;
}

void CClothingPage::Press(Audience audience) {
    if (TablesOf(m_garment).hasAudiences) m_audience = audience;
}

std::optional<Audience> CClothingPage::Pressed() const {
    if (!TablesOf(m_garment).hasAudiences) return std::nullopt;
    return m_audience;
}

const SizeTable& CClothingPage::Table() const {
    return SizesOf(TablesOf(m_garment).tables[static_cast<std::size_t>(m_audience)]);
}

}  // namespace rlx
