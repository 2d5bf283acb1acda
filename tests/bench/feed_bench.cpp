// A request to the feed server over loopback, a new connection each: the whole of PostFeedRequest beside libcurl by
// itself, both asking the same server.
#include <benchmark/benchmark.h>
#include <curl/curl.h>

#include "base/text.h"
#include "feeds/feed_world.h"

namespace rlx::test {
namespace {

constexpr int kRequests = 2000;

std::vector<ScriptedReply> Replies() {
    return {kRequests, {FeedReplyBytes(std::string(4000, 'x')), Ending::kClose, 0}};
}

void PostFeedRequest(benchmark::State& state) {
    CScriptedServer server(Replies());
    FeedWorld world;
    for ([[maybe_unused]] auto _ : state) {
        const FeedReply reply = world.client.PostFeedRequest(server.Url(), u"A=1&B=2", true);
        if (reply.outcome != FeedOutcome::kAnswered) state.SkipWithError("no answer");
    }
}

std::size_t Append(char* bytes, std::size_t size, std::size_t count, void* text) {
    static_cast<std::string*>(text)->append(bytes, size * count);
    return size * count;
}

void PlainCurl(benchmark::State& state) {
    CScriptedServer server(Replies());
    const std::string url = ToUtf8(server.Url());
    CURL* easy = curl_easy_init();
    std::string body;
    curl_easy_setopt(easy, CURLOPT_URL, url.c_str());
    curl_easy_setopt(easy, CURLOPT_POSTFIELDS, "A=1&B=2");
    curl_easy_setopt(easy, CURLOPT_FORBID_REUSE, 1L);
    curl_easy_setopt(easy, CURLOPT_PROXY, "");
    curl_easy_setopt(easy, CURLOPT_WRITEFUNCTION, &Append);
    curl_easy_setopt(easy, CURLOPT_WRITEDATA, static_cast<void*>(&body));
    for ([[maybe_unused]] auto _ : state) {
        body.clear();
        if (curl_easy_perform(easy) != CURLE_OK || body.size() != 4000) state.SkipWithError("no answer");
    }
    curl_easy_cleanup(easy);
}

BENCHMARK(PostFeedRequest)->Iterations(kRequests)->UseRealTime()->Unit(benchmark::kMicrosecond);
BENCHMARK(PlainCurl)->Iterations(kRequests)->UseRealTime()->Unit(benchmark::kMicrosecond);

}  // namespace
}  // namespace rlx::test
