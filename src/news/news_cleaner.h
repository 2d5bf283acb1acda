#pragma once

#include <cstddef>
#include <string>
#include <string_view>

namespace rlx {

/// What a cleaned page holds at most, so that any page of any server is laid out in a moment.
struct NewsLimits {
    std::size_t length = 1'000'000;  ///< characters; what follows is left out
    std::size_t wordLength = 1'000;  ///< a longer word may be broken there
    int tables = 3;                  ///< within one another
    int lists = 8;
    int depth = 24;     ///< of all elements within one another
    int columns = 20;   ///< of one row
    int cells = 3'000;  ///< and rows, of all tables
};

/// The page as the viewer is given it: text, headings, paragraphs, lists, tables, links and emphasis, every element
/// closed and properly nested. Scripts, styles, forms, frames and colours are left out, a picture is its words in
/// brackets, and elements nested deeper than the limits lose their tags, not their text. Takes any text; takes time in
/// proportion to it.
std::u16string CleanNewsPage(std::u16string_view page, const NewsLimits& limits = {});

}  // namespace rlx
