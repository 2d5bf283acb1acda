#pragma once

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>

namespace rlx {

inline constexpr int kMaxPeople = 1000;

/// A total shared to the cent: `larger` people pay one cent more than the others, and all shares add up to the total.
struct BillSplit {
    int larger = 0;               ///< 0 when the total divides evenly
    std::u16string largerShare;   ///< "33.34"; empty when `larger` is 0
    int smaller = 0;              ///< at least 1
    std::u16string smallerShare;  ///< "33.33"
};

/// Shares a total as shown, with two decimals, between 1 to `kMaxPeople` people. Nothing for another number of people,
/// for a total below zero and for one of more than 15 digits.
std::optional<BillSplit> SplitTotal(std::u16string_view totalText, int people);

}  // namespace rlx
