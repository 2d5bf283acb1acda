#include "news/news_writer.h"

#include "base/text.h"

namespace rlx {

void CNewsWriter::Text(std::u16string_view text) {
    for (const char16_t unit : text) {
        if (IsFull()) return;
        Put(unit);
    }
}

void CNewsWriter::Put(char16_t unit) {
    const bool blank = unit == u' ' || (unit >= u'\t' && unit <= u'\r');
    if (unit < u' ' && !blank) return;
    m_wordLength = blank ? 0 : m_wordLength + 1;
    if (m_wordLength > m_limits.wordLength && (unit < 0xDC00 || unit > 0xDFFF)) {
        m_out += u"<br>";
        m_wordLength = 1;
    }
    if (unit == u'<') {
        m_out += u"&lt;";
    } else {
        m_out += unit;
    }
}

void CNewsWriter::Picture(const HtmlToken& token) {
    for (const HtmlAttribute& attribute : token.attributes) {
        if (attribute.name != u"alt" || Trim(attribute.value).empty()) continue;
        Text(u"[");
        Text(attribute.value);
        Text(u"]");
        return;
    }
}

void CNewsWriter::Start(const NewsElement& element, const HtmlToken& token) {
    m_wordLength = 0;
    m_out += u'<';
    m_out += element.writtenAs;
    for (const HtmlAttribute& attribute : token.attributes)
        Attribute(element, attribute);
    m_out += u'>';
}

void CNewsWriter::End(const NewsElement& element) {
    m_wordLength = 0;
    m_out += u"</";
    m_out += element.writtenAs;
    m_out += u'>';
}

void CNewsWriter::Attribute(const NewsElement& element, const HtmlAttribute& attribute) {
    if (!MayHave(element, attribute.name, attribute.value)) return;
    m_out += u' ';
    m_out += attribute.name;
    m_out += u"=\"";
    for (const char16_t unit : attribute.value) {
        if (unit == u'"') {
            m_out += u"&quot;";
        } else if (unit == u'<' || unit == u'>') {
            m_out += unit == u'<' ? u"&lt;" : u"&gt;";
        } else if (unit >= u' ') {
            m_out += unit;
        }
    }
    m_out += u'"';
}

}  // namespace rlx
