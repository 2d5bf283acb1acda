#pragma once

#include <cstddef>
#include <string>
#include <vector>

#include "feeds/rates_list.h"

namespace rlx {

/// One line of a rate card: what one unit of the card's currency is worth in another one.
struct RateCardRow {
    std::u16string code;
    std::u16string name;
    std::u16string worth;  ///< as `FormatAmount` shows it

    friend bool operator==(const RateCardRow&, const RateCardRow&) = default;
};

/// What one unit of the currency at `base` is worth: first in the `chosen` ones, by their positions in the list and in
/// that order, then in those that many travellers need, each once. The base itself and currencies without a known rate
/// are left out; all are when the base has none.
std::vector<RateCardRow> RateCardOf(const CurrencyList& currencies, std::size_t base,
                                    const std::vector<std::size_t>& chosen);

}  // namespace rlx
