#pragma once

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "shell/texts.h"
#include "tools/converter/unit_tables.h"

/// Finding units by what a person types.
namespace rlx {

/// Places in `units` whose names hold `text` (case and accents ignored; all when it is empty), those that begin with
/// it first. For lists that are searched by typing.
std::vector<std::size_t> MatchingUnits(const std::vector<Unit>& units, std::u16string_view text);

enum class PairStatus {
    kFound,
    kNotFound,             ///< no unit of that name or beginning
    kAmbiguous,            ///< the beginning fits several units of the category
    kNeedsCategory,        ///< the name stands in several categories
    kDifferentCategories,  ///< each is known, but no category has both
};

struct UnitPair {
    PairStatus status = PairStatus::kNotFound;
    std::size_t category = 0;  ///< these three hold when found
    std::size_t from = 0;
    std::size_t to = 0;
    std::u16string word;                     ///< the name that is wrong, as it was typed
    std::vector<std::u16string> candidates;  ///< ambiguous: unit names, ten at most
    std::vector<std::size_t> categories;     ///< needs a category: those that hold the word
};

/// Finds two units of one category. Each is a whole name, or a beginning that fits exactly one unit of the category;
/// case and blanks at the ends are ignored, but a name in its exact letters goes before one in other letters. A whole
/// name found in several categories needs the category.
UnitPair FindUnitPair(const UnitTables& tables, std::u16string_view from, std::u16string_view to,
                      std::optional<std::size_t> category);

/// Says what is wrong with a pair that was not found.
std::u16string PairMessage(const UnitPair& pair, const ITexts& texts);

}  // namespace rlx
