#include "platform/curl/curl_http_session.h"

#include <utility>

#include "platform/curl/curl_transfer.h"

namespace rlx {

CCurlHttpSession::CCurlHttpSession(HttpLimits limits) : m_limits(limits) {
    // Not thread-safe in old versions of the library; the first session decides.
    static const CURLcode started = curl_global_init(CURL_GLOBAL_DEFAULT);
    static_cast<void>(started);
}

HttpAnswer CCurlHttpSession::Post(const HttpPost& post, IHttpObserver* observer) {
    auto transfer = std::make_unique<CCurlTransfer>(post, m_limits, observer);
    if (!transfer->WaitForHeaders()) return {nullptr, transfer->Failure()};
    return {std::move(transfer), kHttpNoFailure};
}

}  // namespace rlx
