#pragma once

#include <array>
#include <cstddef>
#include <string>
#include <vector>

#include "tools/converter/unit_category.h"

/// The units as the converter page holds them.
namespace rlx {

struct Unit {
    std::u16string name;
    std::u16string factor;  ///< as stored; "-" for temperatures

    friend bool operator==(const Unit&, const Unit&) = default;
};

/// One row of the units database.
struct UnitRecord {
    std::u16string code;  ///< "0" to "6"
    std::u16string name;
    std::u16string factor;

    friend bool operator==(const UnitRecord&, const UnitRecord&) = default;
};

/// The most units that a category holds.
inline constexpr std::size_t kMaxUnits = 150;

/// One list for each category. The list of temperatures is fixed, whatever the database holds.
using UnitTables = std::array<std::vector<Unit>, kCategoryCount>;

/// Deals the rows of the database, in its order, to the categories: the rows of "0", then those of "1", "2" and "3",
/// then exactly five rows taken unread for the temperatures, then "5" and "6". Rows that do not stand where their
/// category is looked for are left out, and so are those beyond `kMaxUnits`. No rows at all give empty lists, the
/// temperatures too.
UnitTables TablesFromRows(const std::vector<UnitRecord>& rows);

}  // namespace rlx
