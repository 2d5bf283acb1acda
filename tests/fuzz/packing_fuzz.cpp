#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <string_view>

#include "tools/packing/packing_file.h"

/// Any bytes are taken, and what is saved of them reads back the same.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const std::string_view bytes(reinterpret_cast<const char*>(data), size);
    const rlx::PackingFile file = rlx::ReadPackingFile(bytes);
    const rlx::PackingFile again = rlx::ReadPackingFile(rlx::WritePackingFile(file.lists));
    if (!(again.lists == file.lists) || again.lossy) std::abort();
    return 0;
}
