#include "platform/guid.h"

#include <string_view>

namespace rlx {

namespace {

void AppendHex(std::u16string& text, std::uint32_t value) {
    constexpr std::u16string_view kDigits = u"0123456789ABCDEF";
    int shift = 28;
    while (shift > 0 && (value >> shift) == 0)
        shift -= 4;
    for (; shift >= 0; shift -= 4)
        text.push_back(kDigits[(value >> shift) & 0xF]);
}

}  // namespace

std::u16string GuidText(const Guid& guid) {
    std::u16string text;
    for (const std::uint32_t part : {guid.data1, std::uint32_t{guid.data2}, std::uint32_t{guid.data3}}) {
        AppendHex(text, part);
        text.push_back(u'-');
    }
    for (std::size_t i = 0; i < guid.data4.size(); ++i) {
        if (i == 2) text.push_back(u'-');
        AppendHex(text, guid.data4[i]);
    }
    return text;
}

}  // namespace rlx
