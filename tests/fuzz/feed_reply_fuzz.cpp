#include <algorithm>
#include <cstring>

#include "base/text.h"
#include "feeds/reply_body.h"
#include "feeds/reply_headers.h"
#include "feeds/server_verdict.h"
#include "fuzz/target.h"
#include "platform/curl/header_block.h"
#include "platform/http_session.h"

namespace {

using namespace rlx;

class CNoTexts : public ITexts {
public:
    std::u16string Text(int /*id*/) const override { return u"x"; }
};

/// Hands the bytes out in pieces, as a connection does, and breaks off in the end when it is told to.
class CReply : public IHttpReply {
public:
    CReply(std::string headers, std::string_view body, std::size_t piece, bool breaksOff)
        : m_headers(std::move(headers)), m_body(body), m_piece(piece), m_breaksOff(breaksOff) {}

    int Status() const override { return 200; }
    const std::string& RawHeaders() const override { return m_headers; }
    HttpFailure Failure() const override { return m_breaksOff ? kHttpCancelled : kHttpNoFailure; }

    std::optional<std::size_t> Read(char* buffer, std::size_t size) override {
        const std::size_t count = std::min({size, m_piece, m_body.size()});
        if (count == 0 && m_breaksOff) return std::nullopt;
        std::memcpy(buffer, m_body.data(), count);
        m_body.remove_prefix(count);
        return count;
    }

private:
    const std::string m_headers;
    std::string_view m_body;
    const std::size_t m_piece;
    const bool m_breaksOff;
};

}  // namespace

// Two bytes that say how the connection behaves, then a reply: headers, an empty line, the body.
void Try(std::string_view bytes) {
    if (bytes.size() < 2) return;
    const auto piece = static_cast<unsigned char>(bytes[0]) * 16U + 1;
    const auto kind = static_cast<unsigned char>(bytes[1]);
    bytes.remove_prefix(2);
    const std::size_t end = std::min(bytes.find("\r\n\r\n"), bytes.size());
    const std::string_view body = bytes.substr(std::min(end + 4, bytes.size()));
    CReply reply(std::string(bytes.substr(0, end)), body, piece, kind % 4 == 0);

    const std::u16string raw = Widen(reply.RawHeaders());
    const ReplyHeaders headers = ReadReplyHeaders(raw);
    JudgeReply(kind * 4, headers.serverCode, CNoTexts());
    const std::string again = "X-Header: 1\r\n" + Narrow(headers.session);
    for (const std::string& line : HeaderLines(again))
        FailIf(line.find_first_of("\r\n") != std::string::npos);
    const auto text = ReadReplyBody(reply);
    FailIf(text.has_value() == (kind % 4 == 0 && body.size() < kMaxReplyCharacters));
    FailIf(text && (text->size() > kMaxReplyCharacters || !body.starts_with(Narrow(*text))));
}
