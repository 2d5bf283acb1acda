#include "fuzz/target.h"
#include "tools/packing/packing_file.h"

/// Any bytes are taken, and what is saved of them reads back the same.
void Try(std::string_view bytes) {
    const rlx::PackingFile file = rlx::ReadPackingFile(bytes);
    const rlx::PackingFile again = rlx::ReadPackingFile(rlx::WritePackingFile(file.lists));
    FailIf(!(again.lists == file.lists) || again.lossy);
}
