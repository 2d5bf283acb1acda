#pragma once

#include <filesystem>

namespace rlx {

/// Loads a module of the program ("rlx_http.so") from `programFolder`, else from its neighbour "lib/roamlytix", and
/// returns the address of its entry; null when there is none. A module stays loaded to the end.
void* LoadProgramModule(const std::filesystem::path& programFolder, const char* file, const char* entry);

}  // namespace rlx
