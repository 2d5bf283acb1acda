#include "platform/curl/curl_transfer.h"

#include <algorithm>
#include <cstring>
#include <new>

#include "platform/curl/curl_failure.h"
#include "platform/curl/header_block.h"
#include "platform/loopback_host.h"

namespace rlx {

namespace {

constexpr std::size_t kBlock = 65'536;
constexpr int kTurnMilliseconds = 50;

std::string UrlOf(const HttpPost& post) {
    const bool address6 = post.host.find(':') != std::string::npos;
    const std::string host = address6 ? "[" + post.host + "]" : post.host;
    return "http://" + host + ":" + std::to_string(post.port) + post.objectPath;
}

template <typename Value>
void Set(CURL* easy, CURLoption option, Value value) {
    if (curl_easy_setopt(easy, option, value) == CURLE_OUT_OF_MEMORY) throw std::bad_alloc();
}

}  // namespace

CCurlTransfer::CCurlTransfer(const HttpPost& post, const HttpLimits& limits, IHttpObserver* observer)
    : m_limits(limits), m_observer(observer), m_post(post.body) {
    m_multi.reset(curl_multi_init());
    m_easy.reset(curl_easy_init());
    if (!m_multi || !m_easy) throw std::bad_alloc();
    SetUp(post);
    if (curl_multi_add_handle(m_multi.get(), m_easy.get()) != CURLM_OK) Fail(kHttpInternalError);
}

CCurlTransfer::~CCurlTransfer() {
    curl_multi_remove_handle(m_multi.get(), m_easy.get());
}

void CCurlTransfer::SetUp(const HttpPost& post) {
    CURL* easy = m_easy.get();
    for (const std::string& line : HeaderLines(post.headers)) {
        curl_slist* longer = curl_slist_append(m_headers.get(), line.c_str());
        if (longer == nullptr) throw std::bad_alloc();
        static_cast<void>(m_headers.release());
        m_headers.reset(longer);
    }
    Set(easy, CURLOPT_URL, UrlOf(post).c_str());
    Set(easy, CURLOPT_USERAGENT, post.agent.c_str());
    Set(easy, CURLOPT_HTTPHEADER, m_headers.get());
    Set(easy, CURLOPT_POST, 1L);
    Set(easy, CURLOPT_POSTFIELDSIZE_LARGE, static_cast<curl_off_t>(m_post.size()));
    Set(easy, CURLOPT_POSTFIELDS, m_post.c_str());
    SetUpTransport(post);
    SetUpCallbacks();
}

void CCurlTransfer::SetUpTransport(const HttpPost& post) {
    CURL* easy = m_easy.get();
    Set(easy, CURLOPT_PROTOCOLS_STR, "http");
    Set(easy, CURLOPT_PATH_AS_IS, 1L);
    Set(easy, CURLOPT_HTTP_VERSION, static_cast<long>(CURL_HTTP_VERSION_1_1));
    Set(easy, CURLOPT_FOLLOWLOCATION, 0L);
    Set(easy, CURLOPT_FRESH_CONNECT, 1L);
    Set(easy, CURLOPT_FORBID_REUSE, 1L);
    Set(easy, CURLOPT_CONNECTTIMEOUT_MS, static_cast<long>(m_limits.connect.count()));
    Set(easy, CURLOPT_NOSIGNAL, 1L);
    // A name look-up that hangs must not hold up a person who cancels.
    Set(easy, CURLOPT_QUICK_EXIT, 1L);
    if (IsLoopbackHost(post.host)) Set(easy, CURLOPT_PROXY, "");
}

void CCurlTransfer::SetUpCallbacks() {
    CURL* easy = m_easy.get();
    Set(easy, CURLOPT_HEADERFUNCTION, &CCurlTransfer::OnHeader);
    Set(easy, CURLOPT_HEADERDATA, static_cast<void*>(this));
    Set(easy, CURLOPT_WRITEFUNCTION, &CCurlTransfer::OnBody);
    Set(easy, CURLOPT_WRITEDATA, static_cast<void*>(this));
    Set(easy, CURLOPT_XFERINFOFUNCTION, &CCurlTransfer::OnProgress);
    Set(easy, CURLOPT_XFERINFODATA, static_cast<void*>(this));
    Set(easy, CURLOPT_NOPROGRESS, 0L);
}

bool CCurlTransfer::WaitForHeaders() {
    while (!m_headersDone && Step()) {
    }
    // A reply that ends within its headers is no failure to curl.
    if (!m_headersDone && m_failure == kHttpNoFailure) m_failure = kHttpConnectionAborted;
    return m_headersDone;
}

int CCurlTransfer::Status() const {
    long status = 0;
    curl_easy_getinfo(m_easy.get(), CURLINFO_RESPONSE_CODE, &status);
    return static_cast<int>(status);
}

std::optional<std::size_t> CCurlTransfer::Read(char* buffer, std::size_t size) {
    // The time that the reader took is not the server's.
    if (m_paused) m_lastByte = Clock::now();
    while (m_body.empty() && Step()) {
    }
    if (m_body.empty()) return m_failure == kHttpNoFailure ? std::optional<std::size_t>(0) : std::nullopt;
    const std::size_t count = std::min(size, m_body.size());
    std::memcpy(buffer, m_body.data(), count);
    m_body.erase(0, count);
    return count;
}

bool CCurlTransfer::Step() {
    CheckLimits();
    if (m_over) return false;
    if (m_paused) {
        m_paused = false;
        curl_easy_pause(m_easy.get(), CURLPAUSE_CONT);
    }
    int running = 0;
    if (curl_multi_perform(m_multi.get(), &running) != CURLM_OK) Fail(kHttpInternalError);
    CollectResult();
    if (!m_over && m_body.empty()) curl_multi_poll(m_multi.get(), nullptr, 0, kTurnMilliseconds, nullptr);
    return !m_over;
}

void CCurlTransfer::CheckLimits() {
    if (m_over) return;
    const Clock::time_point now = Clock::now();
    // While the connection is being made, curl keeps the time.
    const bool connecting = m_sent == 0 && m_headerBytes == 0;
    const auto silence = connecting ? m_limits.connect + m_limits.stall : m_limits.stall;
    if (m_observer != nullptr && !m_observer->GoOn({m_bodyBytes})) {
        Fail(kHttpCancelled);
    } else if (now - m_lastByte > silence || now - m_begun > m_limits.whole) {
        Fail(kHttpTimedOut);
    }
}

void CCurlTransfer::CollectResult() {
    int left = 0;
    while (const CURLMsg* message = curl_multi_info_read(m_multi.get(), &left)) {
        if (message->msg != CURLMSG_DONE || m_over) continue;
        m_over = true;
        if (m_failure == kHttpNoFailure) m_failure = FailureOf(message->data.result);
    }
}

void CCurlTransfer::Fail(HttpFailure failure) {
    m_over = true;
    m_body.clear();
    if (m_failure == kHttpNoFailure) m_failure = failure;
}

std::size_t CCurlTransfer::TakeHeader(const char* bytes, std::size_t size) {
    m_lastByte = Clock::now();
    m_headerBytes += size;
    if (m_headerBytes > m_limits.headerBytes) {
        m_failure = kHttpInvalidReply;
        return 0;
    }
    if (m_headersDone) return size;  // trailers
    const std::string_view line(bytes, size);
    m_rawHeaders.append(line);
    if (line != "\r\n" && line != "\n") return size;
    // An interim reply ("100 Continue") is not the reply.
    if (Status() / 100 == 1) {
        m_rawHeaders.clear();
    } else {
        m_headersDone = true;
    }
    return size;
}

std::size_t CCurlTransfer::TakeBody(const char* bytes, std::size_t size) {
    m_lastByte = Clock::now();
    if (m_body.size() >= kBlock) {
        m_paused = true;
        return CURL_WRITEFUNC_PAUSE;
    }
    m_bodyBytes += size;
    if (m_bodyBytes > m_limits.bodyBytes) {
        m_failure = kHttpInvalidReply;
        return 0;
    }
    m_body.append(bytes, size);
    return size;
}

std::size_t CCurlTransfer::OnHeader(char* bytes, std::size_t size, std::size_t count, void* self) {
    return static_cast<CCurlTransfer*>(self)->TakeHeader(bytes, size * count);
}

std::size_t CCurlTransfer::OnBody(char* bytes, std::size_t size, std::size_t count, void* self) {
    return static_cast<CCurlTransfer*>(self)->TakeBody(bytes, size * count);
}

int CCurlTransfer::OnProgress(void* self, curl_off_t, curl_off_t, curl_off_t, curl_off_t sent) {
    auto& transfer = *static_cast<CCurlTransfer*>(self);
    if (sent != transfer.m_sent) transfer.m_lastByte = Clock::now();
    transfer.m_sent = sent;
    return 0;
}

}  // namespace rlx
