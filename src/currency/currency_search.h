#pragma once

#include <cstddef>
#include <string_view>
#include <vector>

#include "feeds/rates_list.h"

namespace rlx {

/// The positions of the currencies that fit what somebody typed, best first: the code itself, codes that begin so,
/// names with a word that begins so, countries with a word that begins so, names that hold it anywhere. Case and
/// accents are ignored; currencies of equal rank keep their order. All of them when nothing was typed.
std::vector<std::size_t> SearchCurrencies(std::u16string_view typed, const CurrencyList& currencies);

}  // namespace rlx
