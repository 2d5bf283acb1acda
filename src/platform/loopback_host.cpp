#include "platform/loopback_host.h"

#include <string>

namespace rlx {

namespace {

constexpr std::string_view kLocalhost = "localhost";

bool IsAddress127(std::string_view host) {
    if (host.find_first_not_of("0123456789.") != std::string_view::npos || !host.starts_with("127.")) return false;
    int dots = 0;
    int value = 0;
    for (const char each : host) {
        value = each == '.' ? 0 : value * 10 + (each - '0');
        if (value > 255) return false;
        if (each == '.') ++dots;
    }
    return dots == 3 && host.find("..") == std::string_view::npos && host.back() != '.';
}

}  // namespace

bool IsLoopbackHost(std::string_view host) {
    if (host.starts_with('[') && host.ends_with(']')) host = host.substr(1, host.size() - 2);
    if (host == "::1" || host == "0:0:0:0:0:0:0:1" || IsAddress127(host)) return true;
    std::string lower(host);
    for (char& each : lower) {
        if (each >= 'A' && each <= 'Z') each = static_cast<char>(each | 0x20);
    }
    return lower == kLocalhost || lower.ends_with(".localhost");
}

}  // namespace rlx
