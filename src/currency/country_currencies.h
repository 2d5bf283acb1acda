#pragma once

#include <span>
#include <string_view>

namespace rlx {

/// A currency that is used in a country.
struct CountryCurrency {
    std::u16string_view country;  ///< its English name
    std::u16string_view code;     ///< ISO 4217
};

/// By country; a country with several currencies has several rows.
std::span<const CountryCurrency> CountryCurrencies();

}  // namespace rlx
