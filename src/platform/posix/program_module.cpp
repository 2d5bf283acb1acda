#include "platform/posix/program_module.h"

#include <dlfcn.h>

namespace rlx {

void* LoadProgramModule(const std::filesystem::path& programFolder, const char* file, const char* entry) {
    for (const auto& folder : {programFolder, programFolder.parent_path() / "lib" / "roamlytix"}) {
        void* module = dlopen((folder / file).c_str(), RTLD_NOW | RTLD_LOCAL);
        void* address = module == nullptr ? nullptr : dlsym(module, entry);
        if (address != nullptr) return address;
    }
    return nullptr;
}

}  // namespace rlx
