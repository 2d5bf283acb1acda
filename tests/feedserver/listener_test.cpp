#include <atomic>
#include <chrono>
#include <future>

#include "feeds/feed_parameters.h"
#include "feeds/feed_world.h"
#include "feeds/rates_reply.h"
#include "feedserver/feed_question.h"
#include "feedserver/http_listener.h"
#include "feedserver/session_id.h"
#include "support/raw_client.h"

namespace rlx::test {
namespace {

constexpr char kHead[] = "inet=a:b&did=Zoe & co=1&jc=";
/// One request of the bytes.
std::string Post(const std::string& headers, const std::string& body) {
    return "POST /feed HTTP/1.1\r\nHost: a\r\n" + headers + "Content-Length: " + std::to_string(body.size()) +
           "\r\n\r\n" + body;
}

constexpr char kTail[] = "&os=wince6.1&gid=1&appver=1.2&home=A&B&scrsize=240x320&wasize=240x294";

TEST(FeedQuestion, UnderstandsWhatBuildersMake) {
    const std::string head = kHead;
    const std::string tail = kTail;
    const struct {
        std::string body;
        FeedJob job;
        std::string argument;
    } rows[] = {
        {head + "110" + tail, FeedJob::kRates, ""},
        {head + "111&c='Xi'an & x'" + tail + "&'0'", FeedJob::kWeather, "Xi'an & x"},
        {head + "115&cnid=7 8" + tail + "&'0'", FeedJob::kNews, "7 8"},
        {head + "115&cnid=" + tail + "&'0'", FeedJob::kNews, ""},
        {head + "112" + tail, FeedJob::kInvalid, ""},
        {head + "1100" + tail, FeedJob::kInvalid, ""},
        {head + "111&c=Oslo" + tail, FeedJob::kInvalid, ""},
        {"jc=110" + tail, FeedJob::kInvalid, ""},
        {head + "110&os=wince6.1", FeedJob::kInvalid, ""},
        {"", FeedJob::kInvalid, ""},
    };
    for (const auto& row : rows) {
        const FeedQuestion question = ParseFeedQuestion(row.body);
        EXPECT_EQ(question.job, row.job) << row.body;
        EXPECT_EQ(question.city + question.newsId, row.argument) << row.body;
    }
}

/// A server that knows two rates and one page.
struct ServerWorld : FeedWorld {
    ServerWorld() {
        Knowledge knowledge;
        knowledge.rates = {{"EUR", 0.9}, {"JPY", 150}};
        knowledge.ratesDate = Date{2026, 11, 22};
        knowledge.news = MakeNewsItem("<p>page</p>\n");
        board.Publish(std::move(knowledge));
        EXPECT_EQ(listener.Listen({"127.0.0.1", 0}), "");
        port = listener.Port();
        url = u"http://127.0.0.1:" + Widen(std::to_string(port)) + u"/feed";
    }

    CKnowledgeBoard board;
    CHttpListener listener{board, {}, [](const std::string&) {}};
    std::uint16_t port = 0;
    std::u16string url;
    CFeedParameters parameters{registry, {6, 1, u"x", u"1", {240, 320}, {240, 294}}};
};

TEST(HttpListener, SpeaksTheProtocolOfOurClient) {
    ServerWorld world;
    const FeedReply rates =
        world.client.PostFeedRequest(world.url, world.parameters.CurrencyParameters(u"A", {}), false);
    EXPECT_EQ(rates.body, u"EUR_0.9#JPY_150#");
    EXPECT_EQ(world.Flag(names::kNewNews), 1);
    const std::string session = world.Text(names::kSession);
    EXPECT_TRUE(IsSessionId(session)) << session;
    const FeedReply news = world.client.PostFeedRequest(world.url, world.parameters.NewsParameters(), true);
    EXPECT_EQ(news.body, u"<p>page</p>\n");
    EXPECT_EQ(world.Text(names::kSession), session);
    EXPECT_EQ(world.Text(names::kNewsId), world.board.Get()->news->id);
    EXPECT_TRUE(world.Messages().empty());
    const FeedReply again = world.client.PostFeedRequest(world.url, world.parameters.NewsParameters(), true);
    EXPECT_TRUE(again.body.empty());
    world.board.Publish({});
    world.client.PostFeedRequest(world.url, world.parameters.CurrencyParameters(u"A", {}), true);
    const std::string later = ".\n\nPlease try again later.\n\nIf the problem persist please contact support.";
    EXPECT_EQ(world.Messages(), (std::vector<std::string>{"Roamlytix|!|There are no Updates available(1007).",
                                                          "Roamlytix|!|Server error(1004)" + later}));
}

TEST(HttpListener, SurvivesHostileClients) {
    ServerWorld world;
    const auto post = [](const std::string& headers, const std::string& body) {
        return Post("Connection: close\r\n" + headers, body);
    };
    const std::string good = std::string(kHead) + "110" + kTail;
    const struct {
        const char* name;
        std::string request;
        std::string status;
        bool mayBeCutOff = false;  ///< what the client still sends can swallow the reply
    } rows[] = {
        {"a good one", post("", good), "200"},
        {"a body that is too large", post("", std::string(20'000, 'x')), "413"},
        {"another method", "GET /feed HTTP/1.1\r\nHost: a\r\nConnection: close\r\n\r\n", "405"},
        {"another path", "POST /x HTTP/1.1\r\nHost: a\r\nConnection: close\r\nContent-Length: 0\r\n\r\n", "404"},
        {"headers without end", "POST /feed HTTP/1.1\r\nX: " + std::string(100'000, 'x'), "431", true},
        {"no HTTP", std::string(50, '\xFF') + "\r\n\r\n", "400", true},
        {"a session that is none", post("Cookie: JSESSIONID=a.\r\n", good), "200"},
    };
    for (const auto& row : rows) {
        const std::string reply = RawExchange(world.port, row.request);
        if (reply.empty() && row.mayBeCutOff) continue;
        EXPECT_EQ(reply.substr(0, 12), "HTTP/1.1 " + row.status) << row.name << "\n" << reply.substr(0, 300);
    }
    EXPECT_EQ(RawExchange(world.port, post("Cookie: JSESSIONID=a.\r\n", good)).find("sessionId: a."),
              std::string::npos);
    EXPECT_EQ(world.client.PostFeedRequest(world.url, Widen(good), true).body, u"EUR_0.9#JPY_150#");
}

/// Neither silent nor ever at their end; a time-out alone does not see them.
TEST(HttpListener, DropsWhoNeverComesToAnEnd) {
    const CKnowledgeBoard board;
    const std::string begin = "POST /feed HTTP/1.1\r\nHost: a\r\n";
    const std::string chunk = "10000\r\n" + std::string(65'536, 'x') + "\r\n";
    const struct {
        const char* name;
        std::string first;
        std::string more;
        int requestSeconds;
    } rows[] = {
        {"a header line now and then", begin, "X: y\r\n", 1},
        {"a byte of the body now and then", begin + "Content-Length: 9000\r\n\r\n", "x", 1},
        {"a body without end", begin + "Transfer-Encoding: chunked\r\n\r\n", chunk, 30},
    };
    for (const auto& row : rows) {
        ListenerLimits limits;
        limits.request = std::chrono::seconds(row.requestSeconds);
        CHttpListener listener(board, limits, [](const std::string&) {});
        ASSERT_EQ(listener.Listen({"127.0.0.1", 0}), "");
        CRawClient client(listener.Port());
        client.SetPatience(std::chrono::milliseconds(row.more == chunk ? 1 : 50));
        ASSERT_TRUE(client.Send(row.first)) << row.name;
        const auto begun = std::chrono::steady_clock::now();
        const auto waited = [begun] { return std::chrono::steady_clock::now() - begun; };
        while (client.Send(row.more) && waited() < std::chrono::seconds(20))
            client.Receive();
        EXPECT_LT(waited(), std::chrono::seconds(10)) << row.name;
    }
}

/// More at a time than one look at the sockets may tell, and just as many as it may tell.
TEST(HttpListener, AnswersAllWhoAskInOneInstant) {
    const CKnowledgeBoard board;
    std::atomic<bool> stopsHere = false;
    std::promise<void> stopped;
    std::promise<void> goOn;
    ListenerLimits limits;
    limits.connectionsOfOne = limits.connections;
    CHttpListener listener(board, limits, [&](const std::string&) {
        if (!stopsHere.exchange(false)) return;
        stopped.set_value();
        goOn.get_future().wait();
    });
    ASSERT_EQ(listener.Listen({"127.0.0.1", 0}), "");
    const std::string request = Post("", std::string(kHead) + "110" + kTail);
    std::vector<std::unique_ptr<CRawClient>> clients;
    for (int i = 0; i < 129; ++i) {
        clients.push_back(std::make_unique<CRawClient>(listener.Port()));
        ASSERT_TRUE(clients.back()->Send(request));
        ASSERT_FALSE(clients.back()->Receive().empty());
    }
    stopsHere = true;
    clients[0]->Send(request);
    stopped.get_future().wait();
    for (std::size_t i = 1; i < clients.size(); ++i)
        clients[i]->Send(request);
    goOn.set_value();
    int answered = 0;
    for (const auto& client : clients) {
        client->SetPatience(std::chrono::seconds(8));
        answered += client->Receive().starts_with("HTTP/1.1 200") ? 1 : 0;
    }
    EXPECT_EQ(answered, 129);
}

}  // namespace
}  // namespace rlx::test
