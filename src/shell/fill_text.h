#pragma once

#include <initializer_list>
#include <string>
#include <string_view>

namespace rlx {

/// `pattern` with "%1" to "%9" replaced by the first to ninth value. A mark without a value stays as it is, and so does
/// any other "%"; marks inside a value are not looked at.
std::u16string FillText(std::u16string_view pattern, std::initializer_list<std::u16string_view> values);

}  // namespace rlx
