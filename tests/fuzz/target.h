#pragma once

#include <cstdlib>
#include <string>
#include <string_view>

/// What a target does with one input.
void Try(std::string_view bytes);

inline void FailIf(bool fault) {
    if (fault) std::abort();
}
