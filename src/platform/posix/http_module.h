#pragma once

#include <filesystem>
#include <memory>

#include "platform/http_session.h"

namespace rlx {

/// HTTP that is loaded from "rlx_http.so" at the first request, because its libraries take longer to load than most
/// runs of a program last. The module stays loaded to the end. One thread at a time.
class CHttpModule : public IHttpSession {
public:
    /// The module is looked for in `programFolder`, then in its neighbour "lib/roamlytix".
    explicit CHttpModule(std::filesystem::path programFolder) : m_programFolder(std::move(programFolder)) {}

    /// Fails with `kHttpInternalError` when the module cannot be loaded.
    HttpAnswer Post(const HttpPost& post, IHttpObserver* observer) override;

private:
    bool Load();

    std::filesystem::path m_programFolder;
    std::unique_ptr<IHttpSession> m_session;
};

}  // namespace rlx
