#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace rlx {

/// The lines of a header block, in order, that may go out. Part of a block can stem from what a server sent before, so
/// a line is left out when it is not "Name: value" with a proper name and a value without control characters, when it
/// would frame the message anew (Host, Content-Length, Transfer-Encoding, Connection, Expect, ...), or when its name
/// was there already.
std::vector<std::string> HeaderLines(std::string_view block);

}  // namespace rlx
