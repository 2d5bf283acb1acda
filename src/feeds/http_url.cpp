#include "feeds/http_url.h"

#include <algorithm>

#include "base/number.h"
#include "base/text.h"

namespace rlx {

namespace {

constexpr std::u16string_view kScheme = u"http://";
constexpr std::size_t kMaxHost = 255;

bool IsBlankOrControl(char16_t unit) {
    return unit <= u' ' || unit == 0x7F;
}

std::u16string_view WithoutBlankEnds(std::u16string_view text) {
    while (!text.empty() && IsBlankOrControl(text.front()))
        text.remove_prefix(1);
    while (!text.empty() && IsBlankOrControl(text.back()))
        text.remove_suffix(1);
    return text;
}

bool IsHostCharacter(char each) {
    const bool letter = (each >= 'a' && each <= 'z') || (each >= 'A' && each <= 'Z');
    return letter || (each >= '0' && each <= '9') || each == '-' || each == '.' || each == '_';
}

bool IsAddress6Character(char each) {
    return std::string_view("0123456789abcdefABCDEF:.").find(each) != std::string_view::npos;
}

/// Host and what follows it of "host:port" or "[address]:port"; an empty host when it is not one.
std::pair<std::string, std::string> SplitHost(const std::string& authority) {
    if (authority.starts_with('[')) {
        const std::size_t close = authority.find(']');
        if (close == std::string::npos) return {};
        const std::string host = authority.substr(1, close - 1);
        const bool good = std::all_of(host.begin(), host.end(), IsAddress6Character) && host.find(':') != host.npos;
        return good ? std::pair(host, authority.substr(close + 1)) : std::pair<std::string, std::string>();
    }
    const std::size_t colon = std::min(authority.find(':'), authority.size());
    const std::string host = authority.substr(0, colon);
    if (!std::all_of(host.begin(), host.end(), IsHostCharacter)) return {};
    return {host, authority.substr(colon)};
}

/// "" gives 80, ":8080" gives 8080.
std::optional<std::uint16_t> PortOf(const std::string& text) {
    if (text.empty() || text == ":") return std::uint16_t{80};
    if (text.front() != ':' || text.find_first_not_of("0123456789", 1) != std::string::npos) return std::nullopt;
    const auto port = ParseWholeInteger(Widen(text.substr(1)), 1, 65535);
    return port ? std::optional(static_cast<std::uint16_t>(*port)) : std::nullopt;
}

std::string EncodedPath(std::string_view path) {
    constexpr std::string_view kDigits = "0123456789ABCDEF";
    std::string encoded = path.starts_with('/') ? "" : "/";
    for (const char each : path) {
        const auto value = static_cast<unsigned char>(each);
        if (value > 0x20 && value < 0x7F) {
            encoded.push_back(each);
        } else {
            encoded.push_back('%');
            encoded.push_back(kDigits[value >> 4]);
            encoded.push_back(kDigits[value & 0xF]);
        }
    }
    return encoded;
}

}  // namespace

std::optional<HttpUrl> ParseHttpUrl(std::u16string_view text) {
    text = WithoutBlankEnds(text);
    const bool wide = std::any_of(text.begin(), text.end(), [](char16_t unit) { return unit > 0xFF; });
    if (wide || !BeginsIgnoringCase(text, kScheme)) return std::nullopt;
    const std::string rest = Narrow(text.substr(kScheme.size()));
    const std::string_view whole = std::string_view(rest).substr(0, rest.find('#'));
    const std::size_t end = std::min(whole.find_first_of("/?"), whole.size());
    const auto [host, portText] = SplitHost(std::string(whole.substr(0, end)));
    const std::optional<std::uint16_t> port = PortOf(portText);
    if (host.empty() || host.size() > kMaxHost || !port) return std::nullopt;
    return HttpUrl{host, *port, EncodedPath(whole.substr(end))};
}

}  // namespace rlx
