#pragma once

#include <cstddef>
#include <string>
#include <string_view>
#include <utility>

#include "news/html_tokens.h"
#include "news/news_cleaner.h"
#include "news/news_elements.h"

namespace rlx {

/// Writes text and tags of a cleaned page within the limits, which must outlive it. Knows nothing of nesting.
class CNewsWriter {
public:
    explicit CNewsWriter(const NewsLimits& limits) : m_limits(limits) {}

    bool IsFull() const { return m_out.size() >= m_limits.length; }

    /// Entities stay as they are. What does not fit is left out.
    void Text(std::u16string_view text);

    /// The words of a picture in brackets; nothing when it has none.
    void Picture(const HtmlToken& token);

    /// The start tag, with the attributes that the element may have.
    void Start(const NewsElement& element, const HtmlToken& token);
    void End(const NewsElement& element);

    /// The page so far; nothing may be written any more.
    std::u16string Take() { return std::move(m_out); }

private:
    void Put(char16_t unit);
    void Attribute(const NewsElement& element, const HtmlAttribute& attribute);

    const NewsLimits& m_limits;
    std::u16string m_out;
    std::size_t m_wordLength = 0;
};

}  // namespace rlx
