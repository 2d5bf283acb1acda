#include "feedserver/source_reader.h"

#include <curl/curl.h>

#include <cstdlib>
#include <memory>

namespace rlx {

namespace {

std::size_t TakeBytes(char* bytes, std::size_t size, std::size_t count, void* into) {
    auto& taken = *static_cast<std::string*>(into);
    if (taken.size() + size * count > kMaxSourceBytes) return 0;
    taken.append(bytes, size * count);
    return size * count;
}

int MustStop(void* flag, curl_off_t, curl_off_t, curl_off_t, curl_off_t) {
    return static_cast<const std::atomic<bool>*>(flag)->load() ? 1 : 0;
}

constexpr std::size_t kMaxRefusalBytes = 1024;

bool WasReached(CURL* easy) {
    curl_off_t connected = 0;
    curl_easy_getinfo(easy, CURLINFO_CONNECT_TIME_T, &connected);
    return connected > 0;
}

bool IsWebAddress(const std::string& from) {
    return from.starts_with("http://") || from.starts_with("https://");
}

std::string FaultOf(CURL* easy, CURLcode result, const std::string& kind) {
    if (result == CURLE_WRITE_ERROR) return "larger than " + std::to_string(kMaxSourceBytes) + " bytes";
    if (result != CURLE_OK) return curl_easy_strerror(result);
    long status = 0;
    curl_easy_getinfo(easy, CURLINFO_RESPONSE_CODE, &status);
    if (status != 200) return "status " + std::to_string(status);
    const char* type = nullptr;
    curl_easy_getinfo(easy, CURLINFO_CONTENT_TYPE, &type);
    const std::string given = type == nullptr ? "" : type;
    if (!given.empty() && given.find(kind) == std::string::npos) return "content type " + given;
    return {};
}

SourceBytes Fetch(const std::string& url, const std::string& kind, const FetchPatience& patience) {
    const std::unique_ptr<CURL, void (*)(CURL*)> easy(curl_easy_init(), curl_easy_cleanup);
    if (!easy) return {std::nullopt, "not enough memory"};
    std::string bytes;
    curl_easy_setopt(easy.get(), CURLOPT_URL, url.c_str());
    curl_easy_setopt(easy.get(), CURLOPT_PROTOCOLS_STR, "http,https");
    curl_easy_setopt(easy.get(), CURLOPT_FOLLOWLOCATION, 1L);
    curl_easy_setopt(easy.get(), CURLOPT_REDIR_PROTOCOLS_STR, "http,https");
    curl_easy_setopt(easy.get(), CURLOPT_MAXREDIRS, 3L);
    // As other programs do; the library itself leaves it to them.
    if (const char* trusted = std::getenv("SSL_CERT_FILE"); trusted != nullptr && *trusted != '\0')
        curl_easy_setopt(easy.get(), CURLOPT_CAINFO, trusted);
    curl_easy_setopt(easy.get(), CURLOPT_CONNECTTIMEOUT, patience.connectSeconds);
    curl_easy_setopt(easy.get(), CURLOPT_TIMEOUT, patience.wholeSeconds);
    curl_easy_setopt(easy.get(), CURLOPT_NOSIGNAL, 1L);
    curl_easy_setopt(easy.get(), CURLOPT_USERAGENT, "roamlytix-feedd");
    curl_easy_setopt(easy.get(), CURLOPT_WRITEFUNCTION, TakeBytes);
    curl_easy_setopt(easy.get(), CURLOPT_WRITEDATA, &bytes);
    if (patience.stop != nullptr) {
        curl_easy_setopt(easy.get(), CURLOPT_NOPROGRESS, 0L);
        curl_easy_setopt(easy.get(), CURLOPT_XFERINFOFUNCTION, MustStop);
        curl_easy_setopt(easy.get(), CURLOPT_XFERINFODATA, patience.stop);
    }
    const CURLcode result = curl_easy_perform(easy.get());
    std::string fault = FaultOf(easy.get(), result, kind);
    if (!fault.empty())
        return {std::nullopt, std::move(fault), bytes.substr(0, kMaxRefusalBytes), WasReached(easy.get())};
    return {std::move(bytes), {}};
}

}  // namespace

SourceBytes ReadSourceBytes(IFileSystem& files, const std::string& from, const std::string& kind,
                            const FetchPatience& patience) {
    if (IsWebAddress(from)) return Fetch(from, kind, patience);
    std::optional<std::string> bytes = files.ReadFile(from, kMaxSourceBytes);
    if (!bytes) return {std::nullopt, "cannot be read, or is too large"};
    return {std::move(bytes), {}};
}

}  // namespace rlx
