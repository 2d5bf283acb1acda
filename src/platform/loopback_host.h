#pragma once

#include <string_view>

namespace rlx {

/// True for "localhost" and names below it (case ignored), for addresses of 127.0.0.0/8 and for ::1, with or without
/// brackets: hosts that are this machine, whatever its networks.
bool IsLoopbackHost(std::string_view host);

}  // namespace rlx
