#pragma once

#include <initializer_list>
#include <string>
#include <string_view>

namespace rlx {

/// A text of the string table with "%1", "%2" and so on, each replaced by the value at its place. What a value holds is
/// not looked at again; a number without a value stays as it is.
std::u16string FillIn(std::u16string_view pattern, std::initializer_list<std::u16string_view> values);

}  // namespace rlx
