#include "news/html_tokens.h"

#include <algorithm>
#include <array>

namespace rlx {

namespace {

constexpr std::size_t kMostAttributes = 32;

/// Elements whose content is no text for people.
constexpr std::array<std::u16string_view, 9> kUnseenElements = {
    u"script", u"style", u"title", u"textarea", u"iframe", u"noembed", u"noframes", u"template", u"select"};

bool IsBlank(char16_t unit) {
    return unit == u' ' || (unit >= u'\t' && unit <= u'\r');
}

char16_t Lower(char16_t unit) {
    return unit >= u'A' && unit <= u'Z' ? static_cast<char16_t>(unit + (u'a' - u'A')) : unit;
}

bool IsLetter(char16_t unit) {
    return Lower(unit) >= u'a' && Lower(unit) <= u'z';
}

std::u16string LowerOf(std::u16string_view text) {
    std::u16string lower(text);
    std::ranges::transform(lower, lower.begin(), Lower);
    return lower;
}

bool BeginsWith(std::u16string_view text, std::u16string_view lowerCaseWord) {
    return text.size() >= lowerCaseWord.size() && LowerOf(text.substr(0, lowerCaseWord.size())) == lowerCaseWord;
}

}  // namespace

bool CHtmlTokens::BeginsTag(std::size_t at) const {
    if (m_page[at] != u'<' || at + 1 >= m_page.size()) return false;
    const char16_t next = m_page[at + 1];
    if (next == u'/') return at + 2 < m_page.size() && IsLetter(m_page[at + 2]);
    return IsLetter(next) || next == u'!' || next == u'?';
}

std::optional<HtmlToken> CHtmlTokens::Next() {
    while (m_at < m_page.size() && BeginsTag(m_at)) {
        if (!SkipUnseen()) return TakeTag();
    }
    if (m_at >= m_page.size()) return std::nullopt;
    const std::size_t begin = m_at;
    do {
        m_at = std::min(m_page.find(u'<', m_at + 1), m_page.size());
    } while (m_at < m_page.size() && !BeginsTag(m_at));
    HtmlToken token;
    token.text = m_page.substr(begin, m_at - begin);
    return token;
}

/// A comment, a declaration or an instruction.
bool CHtmlTokens::SkipUnseen() {
    const char16_t next = m_page[m_at + 1];
    if (next != u'!' && next != u'?') return false;
    SkipPast(Rest().starts_with(u"<!--") ? u"-->" : u">");
    return true;
}

HtmlToken CHtmlTokens::TakeTag() {
    HtmlToken token;
    ++m_at;
    token.kind = m_page[m_at] == u'/' ? HtmlToken::Kind::kEnd : HtmlToken::Kind::kStart;
    if (token.kind == HtmlToken::Kind::kEnd) ++m_at;
    const std::size_t begin = m_at;
    while (m_at < m_page.size() && !IsBlank(m_page[m_at]) && m_page[m_at] != u'>' && m_page[m_at] != u'/')
        ++m_at;
    token.name = LowerOf(m_page.substr(begin, m_at - begin));
    for (SkipBlanks(); m_at < m_page.size() && m_page[m_at] != u'>'; SkipBlanks()) {
        HtmlAttribute attribute = TakeAttribute();
        if (token.attributes.size() < kMostAttributes) token.attributes.push_back(std::move(attribute));
    }
    m_at = std::min(m_at + 1, m_page.size());
    if (token.kind == HtmlToken::Kind::kStart && std::ranges::count(kUnseenElements, token.name) > 0)
        SkipContentOf(token.name);
    return token;
}

HtmlAttribute CHtmlTokens::TakeAttribute() {
    HtmlAttribute attribute;
    const std::size_t begin = m_at++;
    while (m_at < m_page.size() && !IsBlank(m_page[m_at]) &&
           std::u16string_view(u"=>/").find(m_page[m_at]) == std::u16string_view::npos)
        ++m_at;
    attribute.name = LowerOf(m_page.substr(begin, m_at - begin));
    SkipBlanks();
    if (m_at < m_page.size() && m_page[m_at] == u'=') {
        ++m_at;
        SkipBlanks();
        attribute.value = TakeValue();
    }
    return attribute;
}

std::u16string_view CHtmlTokens::TakeValue() {
    if (m_at >= m_page.size()) return {};
    const char16_t quote = m_page[m_at];
    const std::size_t begin = m_at;
    if (quote == u'"' || quote == u'\'') {
        const std::size_t end = std::min(m_page.find(quote, begin + 1), m_page.size());
        m_at = std::min(end + 1, m_page.size());
        return m_page.substr(begin + 1, end - begin - 1);
    }
    while (m_at < m_page.size() && !IsBlank(m_page[m_at]) && m_page[m_at] != u'>')
        ++m_at;
    return m_page.substr(begin, m_at - begin);
}

void CHtmlTokens::SkipBlanks() {
    while (m_at < m_page.size() && IsBlank(m_page[m_at]))
        ++m_at;
}

void CHtmlTokens::SkipPast(std::u16string_view mark) {
    const std::size_t found = m_page.find(mark, m_at);
    m_at = found == std::u16string_view::npos ? m_page.size() : found + mark.size();
}

/// Up to the element's end tag, which is the next token.
void CHtmlTokens::SkipContentOf(std::u16string_view name) {
    for (;; ++m_at) {
        m_at = std::min(m_page.find(u"</", m_at), m_page.size());
        if (m_at == m_page.size() || BeginsWith(m_page.substr(m_at + 2), name)) return;
    }
}

}  // namespace rlx
