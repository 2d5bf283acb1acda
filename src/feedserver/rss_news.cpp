#include <pugixml.hpp>

#include "base/text.h"
#include "feedserver/news_item.h"

namespace rlx {

namespace {

constexpr int kMostItems = 50;
constexpr std::size_t kLongestText = 2000;
constexpr std::size_t kLongestLine = 100;

/// Text of a feed's element without tags and control characters.
std::u16string PlainText(std::string_view markup) {
    std::u16string plain;
    bool inTag = false;
    for (const char16_t unit : FromUtf8(markup)) {
        if (unit == u'<') inTag = true;
        if (!inTag && plain.size() < kLongestText) plain.push_back(unit < u' ' ? u' ' : unit);
        if (unit == u'>') inTag = false;
    }
    return Trim(plain);
}

/// ASCII with character references, broken into short lines at blanks.
std::string Html(std::u16string_view text) {
    std::string html;
    std::size_t line = 0;
    for (std::size_t i = 0; i < text.size(); ++i) {
        char32_t point = text[i];
        if (point >= 0xD800 && point <= 0xDBFF && i + 1 < text.size())
            point = 0x10000 + ((point - 0xD800) << 10) + (static_cast<char32_t>(text[++i]) - 0xDC00);
        const bool plain = point >= u' ' && point < 0x7F && point != '<' && point != '>' && point != '&' &&
                           point != '"' && point != '\'';
        if (point == ' ' && html.size() - line > kLongestLine) {
            html.push_back('\n');
            line = html.size();
        } else if (plain) {
            html.push_back(static_cast<char>(point));
        } else {
            html += "&#" + std::to_string(static_cast<std::uint32_t>(point)) + ";";
        }
    }
    return html;
}

bool IsWebLink(std::string_view link) {
    return (link.starts_with("http://") || link.starts_with("https://")) &&
           link.find_first_of(" \t\r\n\"'<>") == std::string_view::npos && link.size() < 900;
}

std::string ItemHtml(const pugi::xml_node& item) {
    const std::string title = Html(PlainText(item.child_value("title")));
    const std::string link = item.child_value("link");
    std::string html = "<H3>";
    html += IsWebLink(link) ? "<A HREF=\"" + Html(FromUtf8(link)) + "\">" + title + "</A>" : title;
    html += "</H3>\n";
    const std::string date = Html(PlainText(item.child_value("pubDate")));
    if (!date.empty()) html += "<P><I>" + date + "</I></P>\n";
    return html + "<P>" + Html(PlainText(item.child_value("description"))) + "</P>\n";
}

}  // namespace

ParsedNews ParseRssNews(std::string_view xml) {
    pugi::xml_document document;
    const auto options = pugi::parse_cdata | pugi::parse_escapes;
    const pugi::xml_parse_result result = document.load_buffer(xml.data(), xml.size(), options, pugi::encoding_utf8);
    if (!result) return {std::nullopt, std::string("not XML: ") + result.description()};
    const pugi::xml_node channel = document.child("rss").child("channel");
    if (!channel) return {std::nullopt, "no rss channel"};
    const std::string title = Html(PlainText(channel.child_value("title")));
    std::string html = "<HTML><HEAD><TITLE>" + title + "</TITLE></HEAD>\n<BODY><H2>" + title + "</H2>\n";
    int count = 0;
    for (const pugi::xml_node& item : channel.children("item")) {
        const std::string piece = ItemHtml(item);
        if (++count > kMostItems || html.size() + piece.size() + 100 > kMaxNewsBytes) break;
        html += piece;
    }
    if (count == 0) return {std::nullopt, "no items in the feed"};
    return {MakeNewsItem(html + "</BODY></HTML>\n"), {}};
}

}  // namespace rlx
