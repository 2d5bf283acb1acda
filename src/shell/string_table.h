#pragma once

#include <string>

#include "shell/pe_image.h"

namespace rlx {

/// The text of that number, or nothing when the library's string table has none. The table is stored in blocks of 16
/// texts; only the block that holds the number is read.
std::u16string FindText(const CPeImage& image, int id);

}  // namespace rlx
