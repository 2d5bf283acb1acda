#pragma once

#include <string_view>

namespace rlx {

/// What an element is to its neighbours.
enum class NewsForm { kInline, kBlock, kList, kItem, kTable, kRows, kRow, kCell, kBreak, kRule };

/// An element that a cleaned page of news may hold.
struct NewsElement {
    std::u16string_view name;
    NewsForm form;
    std::u16string_view writtenAs;  ///< in the cleaned page
};

/// The element of that name in lower case; nothing for one that loses its tag and keeps its content.
const NewsElement* FindNewsElement(std::u16string_view name);

/// True when the element may have the attribute, and with that value. Colours, scripts, and sizes that suit one screen
/// alone are none of them.
bool MayHave(const NewsElement& element, std::u16string_view attribute, std::u16string_view value);

}  // namespace rlx
