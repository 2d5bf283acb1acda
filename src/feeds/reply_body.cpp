#include "feeds/reply_body.h"

#include <array>

#include "base/text.h"

namespace rlx {

namespace {

/// Hands out the lines of a body through a small buffer.
class CLineReader {
public:
    explicit CLineReader(IHttpReply& reply) : m_reply(reply) {}

    /// The next line or piece of one; empty at the end and after a failure.
    std::string NextLine() {
        std::string line;
        while (line.size() < kMaxReplyLine && (m_at < m_filled || Fill())) {
            const char byte = m_buffer[m_at++];
            line.push_back(byte);
            if (byte == '\n') break;
        }
        return line;
    }

    bool Failed() const { return m_failed; }

private:
    bool Fill() {
        const std::optional<std::size_t> count = m_reply.Read(m_buffer.data(), m_buffer.size());
        m_failed = !count.has_value();
        m_at = 0;
        m_filled = count.value_or(0);
        return m_filled > 0;
    }

    IHttpReply& m_reply;
    std::array<char, 2048> m_buffer{};
    std::size_t m_at = 0;
    std::size_t m_filled = 0;
    bool m_failed = false;
};

}  // namespace

std::optional<std::u16string> ReadReplyBody(IHttpReply& reply) {
    CLineReader lines(reply);
    std::u16string body;
    for (std::string line = lines.NextLine(); !line.empty(); line = lines.NextLine()) {
        if (lines.Failed()) return std::nullopt;
        if (body.size() + line.size() > kMaxReplyCharacters) return body;
        body += Widen(line);
    }
    return lines.Failed() ? std::nullopt : std::optional(std::move(body));
}

}  // namespace rlx
