#include "feeds/reply_headers.h"

namespace rlx {

namespace {

using View = std::u16string_view;

/// `text` from `count` characters on; empty past the end.
View From(View text, std::size_t count) {
    return text.substr(count < text.size() ? count : text.size());
}

/// What stands between `mark`, of which `skip` characters are passed over, and the first `end` behind it.
View Between(View text, View mark, std::size_t skip, View end) {
    const std::size_t at = text.find(mark);
    if (at == View::npos) return {};
    const View rest = From(text, at + skip);
    const std::size_t stop = rest.find(end);
    return stop == View::npos ? View() : rest.substr(0, stop);
}

}  // namespace

ReplyHeaders ReadReplyHeaders(std::u16string_view rawHeaders) {
    ReplyHeaders headers;
    headers.session = From(Between(rawHeaders, u"sessionId:", 10, u"."), 1);
    // The code ends where the next header begins, and that one begins with a capital C.
    headers.serverCode = From(Between(rawHeaders, u"ServerMSG:", 10, u"C"), 1).substr(0, 4);
    // Only the name is passed over: colon and blank go with the first two characters.
    headers.newsId = From(Between(rawHeaders, u"newsid: ", 6, u"\r\n"), 2);
    return headers;
}

std::optional<std::u16string> RedirectLocation(std::u16string_view rawHeaders) {
    constexpr View kMark = u"Location: ";
    const std::size_t at = rawHeaders.find(kMark);
    if (at == View::npos) return std::nullopt;
    const View rest = From(rawHeaders, at + kMark.size());
    return std::u16string(rest.substr(0, rest.find(u'\n')));
}

}  // namespace rlx
