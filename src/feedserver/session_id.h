#pragma once

#include <string>
#include <string_view>

namespace rlx {

/// 128 bits of the system's random source as 32 hexadecimal digits.
std::string NewSessionId();

/// True for what `NewSessionId` makes.
bool IsSessionId(std::string_view text);

}  // namespace rlx
