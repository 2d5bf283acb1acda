#include "feedserver/session_id.h"

#include <sys/random.h>

#include <array>

namespace rlx {

namespace {

constexpr std::string_view kDigits = "0123456789abcdef";

}  // namespace

std::string NewSessionId() {
    std::array<unsigned char, 16> bytes{};
    std::size_t filled = 0;
    while (filled < bytes.size()) {
        const ssize_t count = getrandom(bytes.data() + filled, bytes.size() - filled, 0);
        if (count > 0) filled += static_cast<std::size_t>(count);
    }
    std::string text;
    for (const unsigned char byte : bytes) {
        text.push_back(kDigits[byte >> 4]);
        text.push_back(kDigits[byte & 0xF]);
    }
    return text;
}

bool IsSessionId(std::string_view text) {
    return text.size() == 32 && text.find_first_not_of(kDigits) == std::string_view::npos;
}

}  // namespace rlx
