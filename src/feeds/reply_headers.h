#pragma once

#include <optional>
#include <string>
#include <string_view>

namespace rlx {

/// What the server says besides the body. Each field is found by its place in the raw headers, so the server sends them
/// in a fixed form (docs/formats/feed-protocol.md). A field that is not there, or lacks its end, is empty.
struct ReplyHeaders {
    std::u16string session;
    std::u16string serverCode;
    std::u16string newsId;
};

ReplyHeaders ReadReplyHeaders(std::u16string_view rawHeaders);

/// What follows "Location: " up to the line feed; the carriage return before it stays. Nothing when there is no such
/// header.
std::optional<std::u16string> RedirectLocation(std::u16string_view rawHeaders);

}  // namespace rlx
