#pragma once

#include "platform/http_session.h"

namespace rlx {

/// HTTP/1.1 over libcurl, one connection for each request. A proxy of the environment is used, except for this machine.
/// One session on one thread at a time.
class CCurlHttpSession : public IHttpSession {
public:
    explicit CCurlHttpSession(HttpLimits limits = {});

    HttpAnswer Post(const HttpPost& post, IHttpObserver* observer) override;

private:
    HttpLimits m_limits;
};

}  // namespace rlx
