#include "platform/curl/header_block.h"

#include <algorithm>
#include <array>
#include <set>

namespace rlx {

namespace {

constexpr std::array<std::string_view, 8> kFraming = {"host",       "content-length", "transfer-encoding", "connection",
                                                      "keep-alive", "expect",         "upgrade",           "te"};

bool IsNameCharacter(char each) {
    const bool letter = (each >= 'a' && each <= 'z') || (each >= 'A' && each <= 'Z');
    return letter || (each >= '0' && each <= '9') || each == '-' || each == '_';
}

bool IsControl(char each) {
    const auto value = static_cast<unsigned char>(each);
    return (value < 0x20 && value != '\t') || value == 0x7F;
}

/// The name in small letters; empty when the line may not go out.
std::string NameOf(std::string_view line) {
    const std::size_t colon = line.find(':');
    if (colon == std::string_view::npos || colon == 0) return {};
    std::string name(line.substr(0, colon));
    if (!std::all_of(name.begin(), name.end(), IsNameCharacter)) return {};
    if (std::any_of(line.begin(), line.end(), IsControl)) return {};
    for (char& each : name) {
        if (each >= 'A' && each <= 'Z') each = static_cast<char>(each | 0x20);
    }
    return std::find(kFraming.begin(), kFraming.end(), name) == kFraming.end() ? name : std::string();
}

}  // namespace

std::vector<std::string> HeaderLines(std::string_view block) {
    std::vector<std::string> lines;
    std::set<std::string> names;
    while (!block.empty()) {
        const std::size_t end = std::min(block.find("\r\n"), block.size());
        const std::string_view line = block.substr(0, end);
        block.remove_prefix(std::min(end + 2, block.size()));
        std::string name = NameOf(line);
        if (!name.empty() && names.insert(std::move(name)).second) lines.emplace_back(line);
    }
    return lines;
}

}  // namespace rlx
