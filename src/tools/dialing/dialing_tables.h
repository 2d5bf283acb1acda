#pragma once

#include <iterator>
#include <span>
#include <string_view>

/// The two reference tables, compiled in. Rows are in alphabetical order of the first text.
namespace rlx {

/// International: country, dialling code without "+", hours from GMT. US: city, region, area code with "+".
struct DialingRow {
    std::u16string_view first;
    std::u16string_view second;
    std::u16string_view third;
};

std::span<const DialingRow> InternationalRows();  ///< 244 rows
std::span<const DialingRow> UsRows();             ///< 259 rows

}  // namespace rlx
