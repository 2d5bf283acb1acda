#pragma once

#include <cstddef>
#include <span>

namespace rlx {

/// The built-in resource module: a resource-only PE library that lies in the program's read-only data. Valid for the
/// whole run.
std::span<const std::byte> EnglishImage();

}  // namespace rlx
