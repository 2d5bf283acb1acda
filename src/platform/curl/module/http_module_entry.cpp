#include "platform/curl/curl_http_session.h"

/// What `CHttpModule` asks the module for; the caller owns the session.
extern "C" __attribute__((visibility("default"))) rlx::IHttpSession* RlxMakeHttpSession() {
    return std::make_unique<rlx::CCurlHttpSession>().release();
}
