#include "shell/fill_text.h"

#include <cstddef>

namespace rlx {

std::u16string FillText(std::u16string_view pattern, std::initializer_list<std::u16string_view> values) {
    std::u16string text;
    for (std::size_t at = 0; at < pattern.size(); ++at) {
        const char16_t next = at + 1 < pattern.size() ? pattern[at + 1] : u'\0';
        const bool mark = pattern[at] == u'%' && next >= u'1' && next <= u'9';
        const std::size_t index = mark ? static_cast<std::size_t>(next - u'1') : values.size();
        if (index < values.size()) {
            text += values.begin()[index];
            ++at;
        } else {
            text += pattern[at];
        }
    }
    return text;
}

}  // namespace rlx
