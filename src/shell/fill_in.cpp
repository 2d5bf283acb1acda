#include "shell/fill_in.h"

namespace rlx {

std::u16string FillIn(std::u16string_view pattern, std::initializer_list<std::u16string_view> values) {
    std::u16string result;
    for (std::size_t i = 0; i < pattern.size(); ++i) {
        const std::size_t number = pattern[i] == u'%' && i + 1 < pattern.size() ? pattern[i + 1] - u'0' : 0U;
        if (number >= 1 && number <= values.size()) {
            result += values.begin()[number - 1];
            ++i;
        } else {
            result += pattern[i];
        }
    }
    return result;
}

}  // namespace rlx
