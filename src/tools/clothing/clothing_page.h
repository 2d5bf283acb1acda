#pragma once

#include <cstddef>
#include <optional>
#include <string_view>

#include "shell/texts.h"
#include "tools/clothing/size_tables.h"

namespace rlx {

/// In the order of the selector.
enum class Garment { kBras, kDresses, kShirtsAndSweaters, kShoes, kSuits, kTrousers };
inline constexpr std::size_t kGarmentCount = 6;

enum class Audience { kMen, kWomen, kChildren };
inline constexpr std::size_t kAudienceCount = 3;

TextId GarmentName(Garment garment);
TextId AudienceName(Audience audience);

/// A garment by its number 0 to 5, by its display name or by a beginning of the name that fits no other one; case
/// ignored.
std::optional<Garment> FindGarment(std::u16string_view text, const ITexts& texts);

/// The selection of the page: opens with men's shoes.
class CClothingPage {
public:
    /// Shows the men's table where the garment has audiences.
    void Select(Garment garment);

    /// Changes nothing for a garment without audiences.
    void Press(Audience audience);

    Garment Selected() const { return m_garment; }

    /// The pressed button; nothing when the garment has no audiences.
    std::optional<Audience> Pressed() const;

    const SizeTable& Table() const;

private:
    Garment m_garment = Garment::kShoes;
    Audience m_audience = Audience::kMen;
};

}  // namespace rlx
