#pragma once

#include <array>
#include <cstddef>
#include <optional>
#include <span>
#include <string>
#include <string_view>

#include "shell/texts.h"
#include "tools/converter/unit_table.h"

/// The seven kinds of measurement. A category is named by its number, 0 to 6, which is also its place in the category
/// list; in the units database the number stands as one digit of text.
namespace rlx {

inline constexpr std::size_t kCategoryCount = 7;
inline constexpr std::size_t kTemperatures = 4;

/// The categories whose units can be added and deleted, in the order of the "Edit units" list.
inline constexpr std::array<std::size_t, 6> kEditableCategories = {0, 1, 2, 3, 5, 6};

/// "0" to "6".
std::u16string CategoryCode(std::size_t category);

/// The display name, from the string table.
std::u16string CategoryName(std::size_t category, const ITexts& texts);

/// What stands behind "Value" in the column title: "/m²"; empty for temperatures.
std::u16string_view ValueSuffix(std::size_t category);

std::span<const SeedUnit> SeedUnits(std::size_t category);

/// A category by its digit, by its display name or by a beginning of the name that fits no other one; case ignored.
std::optional<std::size_t> FindCategory(std::u16string_view text, const ITexts& texts);

}  // namespace rlx
