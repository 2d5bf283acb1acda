#include "platform/posix/http_module.h"

#include <dlfcn.h>

namespace rlx {

namespace {

constexpr char kModule[] = "rlx_http.so";
constexpr char kEntry[] = "RlxMakeHttpSession";

}  // namespace

bool CHttpModule::Load() {
    for (const std::filesystem::path& folder : {m_programFolder, m_programFolder.parent_path() / "lib" / "roamlytix"}) {
        void* module = dlopen((folder / kModule).c_str(), RTLD_NOW | RTLD_LOCAL);
        if (module == nullptr) continue;
        using Make = IHttpSession* (*)();
        const auto make = reinterpret_cast<Make>(dlsym(module, kEntry));
        if (make == nullptr) continue;
        m_session.reset(make());
        return true;
    }
    return false;
}

HttpAnswer CHttpModule::Post(const HttpPost& post, IHttpObserver* observer) {
    if (!m_session && !Load()) return {nullptr, kHttpInternalError};
    return m_session->Post(post, observer);
}

}  // namespace rlx
