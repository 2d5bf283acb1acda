#pragma once

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace rlx {

/// One attribute of a tag; the name in lower case, the value as it was written (entities and all), without its quotes.
struct HtmlAttribute {
    std::u16string name;
    std::u16string_view value;
};

struct HtmlToken {
    enum class Kind { kText, kStart, kEnd };

    Kind kind = Kind::kText;
    std::u16string name;       ///< of a tag, in lower case
    std::u16string_view text;  ///< of a text, as it was written
    std::vector<HtmlAttribute> attributes;
};

/// Takes a page of HTML apart, whatever it holds: comments, declarations and what belongs to scripts and style sheets
/// are left out, a "<" that begins no tag is text, and a tag that the page ends in ends there. A tag keeps at most 32
/// attributes. The views in the tokens point into the page. Takes time in proportion to the page's length.
class CHtmlTokens {
public:
    explicit CHtmlTokens(std::u16string_view page) : m_page(page) {}

    /// Nothing at the end of the page.
    std::optional<HtmlToken> Next();

private:
    bool SkipUnseen();
    HtmlToken TakeTag();
    HtmlAttribute TakeAttribute();
    std::u16string_view TakeValue();
    void SkipBlanks();
    void SkipPast(std::u16string_view mark);
    void SkipContentOf(std::u16string_view name);
    bool BeginsTag(std::size_t at) const;
    std::u16string_view Rest() const { return m_page.substr(m_at); }

    std::u16string_view m_page;
    std::size_t m_at = 0;
};

}  // namespace rlx
