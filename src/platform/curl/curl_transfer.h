#pragma once

#include <curl/curl.h>

#include <chrono>
#include <memory>
#include <string>

#include "platform/http_session.h"

namespace rlx {

/// One request under way: sends, then hands out the reply's body as it is asked for. Never buffers more than a block.
class CCurlTransfer : public IHttpReply {
public:
    CCurlTransfer(const HttpPost& post, const HttpLimits& limits, IHttpObserver* observer);
    ~CCurlTransfer() override;
    CCurlTransfer(const CCurlTransfer&) = delete;
    CCurlTransfer& operator=(const CCurlTransfer&) = delete;

    /// True when status line and headers are there, whatever comes of the body; false leaves the reason in `Failure`.
    bool WaitForHeaders();

    int Status() const override;
    const std::string& RawHeaders() const override { return m_rawHeaders; }
    std::optional<std::size_t> Read(char* buffer, std::size_t size) override;
    HttpFailure Failure() const override { return m_failure; }

private:
    using Clock = std::chrono::steady_clock;

    void SetUp(const HttpPost& post);
    void SetUpTransport(const HttpPost& post);
    void SetUpCallbacks();
    /// One turn of the transfer; false when it is over, well or badly.
    bool Step();
    /// Ends the transfer when the observer says so or a time limit has passed.
    void CheckLimits();
    void CollectResult();
    void Fail(HttpFailure failure);

    std::size_t TakeHeader(const char* bytes, std::size_t size);
    std::size_t TakeBody(const char* bytes, std::size_t size);

    static std::size_t OnHeader(char* bytes, std::size_t size, std::size_t count, void* self);
    static std::size_t OnBody(char* bytes, std::size_t size, std::size_t count, void* self);
    static int OnProgress(void* self, curl_off_t, curl_off_t, curl_off_t, curl_off_t sent);

    HttpLimits m_limits;
    IHttpObserver* m_observer;
    std::string m_post;
    std::string m_rawHeaders;
    std::size_t m_headerBytes = 0;
    std::string m_body;
    std::size_t m_bodyBytes = 0;
    curl_off_t m_sent = 0;
    bool m_headersDone = false;
    bool m_paused = false;
    bool m_over = false;
    HttpFailure m_failure = kHttpNoFailure;
    Clock::time_point m_begun = Clock::now();
    Clock::time_point m_lastByte = m_begun;

    // In this order, so that the request is taken out of `m_multi` before either goes.
    std::unique_ptr<curl_slist, void (*)(curl_slist*)> m_headers{nullptr, curl_slist_free_all};
    std::unique_ptr<CURLM, CURLMcode (*)(CURLM*)> m_multi{nullptr, curl_multi_cleanup};
    std::unique_ptr<CURL, void (*)(CURL*)> m_easy{nullptr, curl_easy_cleanup};
};

}  // namespace rlx
