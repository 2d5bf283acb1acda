#include "platform/posix/http_module.h"

#include "platform/posix/program_module.h"

namespace rlx {

namespace {

constexpr char kModule[] = "rlx_http.so";
constexpr char kEntry[] = "RlxMakeHttpSession";

}  // namespace

bool CHttpModule::Load() {
    using Make = IHttpSession* (*)();
    const auto make = reinterpret_cast<Make>(LoadProgramModule(m_programFolder, kModule, kEntry));
    if (make != nullptr) m_session.reset(make());
    return m_session != nullptr;
}

HttpAnswer CHttpModule::Post(const HttpPost& post, IHttpObserver* observer) {
    if (!m_session && !Load()) return {nullptr, kHttpInternalError};
    return m_session->Post(post, observer);
}

}  // namespace rlx
