#pragma once

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

#include "feeds/rates_list.h"

namespace rlx {

/// The reply's codes are looked for among this many entries at the front of the list.
inline constexpr std::size_t kLookupBound = 189;

/// A rate that the server sent for a currency of the list.
struct RateChange {
    std::u16string name;
    std::u16string code;
    std::u16string rate;  ///< as received

    friend bool operator==(const RateChange&, const RateChange&) = default;
};

/// Takes a reply of entries "code_rate#" apart, in order. A code that is not among the first `kLookupBound` entries of
/// the list is skipped; one that stands there twice takes the later name. An entry without its "_" or "#" ends the
/// reply. Of several rates for one name only the last is kept.
std::vector<RateChange> ParseRatesReply(std::u16string_view reply, const CurrencyList& list);

}  // namespace rlx
