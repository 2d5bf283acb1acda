#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

namespace rlx {

/// The parts of an address that a request needs.
struct HttpUrl {
    std::string host;  ///< an IPv6 address stands without brackets
    std::uint16_t port = 80;
    std::string objectPath;  ///< path and query, at least "/"

    friend bool operator==(const HttpUrl&, const HttpUrl&) = default;
};

/// Takes an address of plain HTTP apart. White space and control characters at both ends are dropped: an address cut
/// out of a reply's header ends with a carriage return, one out of a file with a line end. Within the path, blanks and
/// characters outside ASCII are percent-encoded; a fragment is dropped. Nothing for another scheme, a missing host, a
/// bad port, a user name in the address, or characters above 255.
std::optional<HttpUrl> ParseHttpUrl(std::u16string_view text);

}  // namespace rlx
