#include "feeds/feed_client.h"

#include "feeds/feed_world.h"
#include "shell/resources.h"

namespace rlx::test {
namespace {

constexpr char kNoServer[] = "Error!|!|Cannot connect to Server(%).\n\nFor more information: Please contact support.";

std::string NoServer(const std::string& code) {
    std::string text = kNoServer;
    return text.replace(text.find('%'), 1, code);
}

struct Row {
    const char* name;
    std::vector<ScriptedReply> script;
    std::string seen;  ///< outcome, body, "session/news/flag of new news", messages
    std::size_t requests = 1;
};

/// Session "old" and news "7" are stored before each row.
std::vector<Row> Rows() {
    const std::string later = "Please try again later.\n\nIf the problem persist please contact support.";
    const std::string ok = "HTTP/1.1 200 OK\r\n";
    const std::string moved = "HTTP/1.1 302 Found\r\nLocation: ";
    const std::string unchanged = "failed() old/7/-1 ";
    std::string endless = ok;
    for (int i = 0; i < 5000; ++i)
        endless += "X-Line: " + std::string(40, 'x') + "\r\n";
    return {
        {"the usual reply", {{FeedReplyBytes("EUR_1#")}}, "answered(EUR_1#) S1/7/0 "},
        {"other news are announced", {{FeedReplyBytes("x", "1005", "8")}}, "answered(x) S1/7/1 "},
        {"invalid request",
         {{FeedReplyBytes("b", "1001")}},
         "answered(b) S1/7/0 Roamlytix|!|Invalid request(1001).\n\n" + later},
        {"a code that nobody knows", {{FeedReplyBytes("b", "1002")}}, "not understood() S1/7/0 "},
        {"a page of somebody else", {{ok + "Content-Type: text/html\r\n\r\n<html>"}}, "not understood() /7/1 "},
        {"the code not followed by a C",
         {{ok + "sessionId: S1.\r\nnewsid: 7\r\nServerMSG: 1005\r\n\r\nb"}},
         "not understood() S1/7/0 "},
        {"the session without its end",
         {{ok + "ServerMSG: 1005\r\nContent-Type: a\r\nnewsid: 7\r\nsessionId: S1\r\n\r\nb"}},
         "answered(b) /7/0 "},
        {"the headers in another order",
         {{ok + "newsid: 8\r\nServerMSG: 1005\r\nContent-Length: 1\r\nsessionId: S1.\r\n\r\nb"}},
         "answered(b) S1/7/1 "},
        {"an interim reply first",
         {{"HTTP/1.1 100 Continue\r\nServerMSG: 1001\r\nC: x\r\n\r\n" + FeedReplyBytes("b")}},
         "answered(b) S1/7/0 "},
        {"access denied",
         {{FeedReplyBytes("b", "1005", "9", "S2", "401 No")}},
         "denied() old/7/-1 Error!|!|Access to the secured http site is denied!"},
        {"moved", {{moved + "SELF/new\r\nA: b\r\n\r\n"}, {FeedReplyBytes("there")}}, "answered(there) S1/7/0 ", 2},
        {"moved twice", {{moved + "SELF/a\r\n\r\n"}, {moved + "SELF/b\r\n\r\n"}}, unchanged, 2},
        {"cut off in the body",
         {{ok + "sessionId: S1.\r\nServerMSG: 1005\r\nContent-Length: 99\r\nnewsid: 7\r\n\r\nEUR_1#"}},
         "failed() S1/7/0 " + NoServer("12030")},
        {"silence", {{"", Ending::kHold}}, unchanged + NoServer("12002")},
        {"silence in the body",
         {{ok + "sessionId: S1.\r\nServerMSG: 1005\r\nContent-Length: 9\r\nnewsid: 7\r\n\r\nabc", Ending::kHold}},
         "failed() S1/7/0 " + NoServer("12002")},
        {"endless headers", {{endless}}, unchanged + NoServer("12152")},
    };
}

TEST(FeedClient, WhatTheUserSeesAndTheRegistryHolds) {
    constexpr const char* kOutcomes[] = {"answered", "not connected", "denied", "failed", "not understood"};
    for (const Row& row : Rows()) {
        SCOPED_TRACE(row.name);
        FeedWorld world;
        CScriptedServer server(row.script);
        world.settings.WriteString(RegistryRoot::kLocalMachine, keys::kRoamlytix, names::kSession, u"old");
        world.settings.WriteString(RegistryRoot::kLocalMachine, keys::kRoamlytix, names::kNewsId, u"7");
        const FeedReply reply = world.client.PostFeedRequest(server.Url(), u"did=a", false);
        std::string seen = kOutcomes[static_cast<int>(reply.outcome)];
        seen += "(" + Narrow(reply.body) + ") " + world.Text(names::kSession) + "/" + world.Text(names::kNewsId) + "/" +
                std::to_string(world.Flag(names::kNewNews)) + " ";
        for (const std::string& message : world.Messages())
            seen += message;
        EXPECT_EQ(seen, row.seen);
        EXPECT_EQ(server.Requests().size(), row.requests);
        EXPECT_EQ(world.connections.held, 0);
    }
}

/// Never silent for long, never done: the request as a whole has its time.
TEST(FeedClient, AServerThatDripsForEverIsLeft) {
    FeedWorld world;
    HttpLimits limits = QuickLimits();
    limits.whole = std::chrono::milliseconds(250);
    CCurlHttpSession http(limits);
    CFeedClient client({http, world.connections, world.registry, world.boxes, world.texts});
    CScriptedServer server({{FeedReplyBytes(std::string(500, 'x')), Ending::kClose, 5}});
    EXPECT_EQ(client.PostFeedRequest(server.Url(), u"", true).outcome, FeedOutcome::kFailed);
    EXPECT_EQ(world.Messages(), (std::vector<std::string>{NoServer("12002")}));
}

TEST(FeedClient, SendsHeadersAndBodyInOrder) {
    FeedWorld world;
    CScriptedServer server({{FeedReplyBytes("a")}, {FeedReplyBytes("b", "1005", "7", "S2")}, {FeedReplyBytes("c")}});
    world.connections.providerKeys.insert(u"Comm\\ConnMgr\\Providers\\{EF097F4C-DC4B-4c98-8FF6-AEF805DC0E8E}\\HTTP-{" +
                                          GuidText(kNetworkInternet) + u"}");
    for (int i = 0; i < 3; ++i)
        world.client.PostFeedRequest(server.Url(u"/feed?x=1 2"), u"did=Zo\u00EB \u0416&jc=110", true);
    const std::vector<std::string> requests = server.Requests();
    ASSERT_EQ(requests.size(), 3U);
    EXPECT_TRUE(requests[0].starts_with("POST /feed?x=1%202 HTTP/1.1\r\n")) << requests[0];
    EXPECT_NE(requests[0].find("\r\nUser-Agent: Roamlytix\r\n"), std::string::npos);
    EXPECT_TRUE(requests[0].ends_with("\r\n\r\ninet=My ISP:My ISP&did=Zo\xEB ?&jc=110")) << requests[0];
    EXPECT_EQ(requests[0].find("Cookie"), std::string::npos);
    EXPECT_NE(requests[1].find("Content-Type: application/x-www-form-urlencoded\r\nCookie: JSESSIONID=S1\r\n"),
              std::string::npos);
    EXPECT_NE(requests[2].find("\r\nCookie: JSESSIONID=S2\r\n"), std::string::npos);
}

TEST(FeedClient, AServerCannotSlipHeadersIntoTheNextRequest) {
    FeedWorld world;
    CScriptedServer server(
        {{FeedReplyBytes("a", "1005", "7", "S\r\nContent-Length: 0\r\nX: y")}, {FeedReplyBytes("b")}});
    world.client.PostFeedRequest(server.Url(), u"did=a", true);
    world.client.PostFeedRequest(server.Url(), u"did=a", true);
    ASSERT_EQ(server.Requests().size(), 2U);
    EXPECT_EQ(server.Requests()[1].find("Content-Length: 0"), std::string::npos) << server.Requests()[1];
    EXPECT_TRUE(server.Requests()[1].ends_with("did=a"));
}

TEST(FeedClient, QuietStoresTheNewsIdentifierAndAsksNothing) {
    FeedWorld world;
    CScriptedServer server({{FeedReplyBytes("a", "1005", "abc 12")}, {FeedReplyBytes("a", "1005", "13")}});
    world.client.PostFeedRequest(server.Url(), u"", true);
    EXPECT_EQ(world.Text(names::kNewsId), "abc 12");
    EXPECT_EQ(world.Flag(names::kNewNews), -1);
    EXPECT_TRUE(world.boxes.shown.empty());
    world.client.PostFeedRequest(server.Url(), u"", false);
    EXPECT_EQ(world.Text(names::kNewsId), "abc 12");
    EXPECT_EQ(world.Flag(names::kNewNews), 1);
}

TEST(FeedClient, CutsTheBodyAtTheLastLineThatFits) {
    const auto lines = [](std::size_t count, std::size_t length) {
        std::string body;
        for (std::size_t i = 0; i < count; ++i)
            body += std::string(length - 2, static_cast<char>('a' + i % 26)) + "\r\n";
        return body;
    };
    const struct {
        const char* name;
        std::string body;
        std::size_t kept;
    } rows[] = {
        {"one more character", lines(255, 1000) + std::string(999, 'x') + "\n", 255'000},
        {"short lines", lines(2561, 100), 255'900},
        {"one endless line, dropped by pieces", std::string(300'000, 'x'), 249 * 1024},

        {"zeros and high bytes are kept", std::string("a\0\xFF\r\n\n", 6), 6},
    };
    for (const auto& row : rows) {
        SCOPED_TRACE(row.name);
        FeedWorld world;
        CScriptedServer server({{FeedReplyBytes(row.body)}});
        const FeedReply reply = world.client.PostFeedRequest(server.Url(), u"", true);
        EXPECT_EQ(reply.outcome, FeedOutcome::kAnswered);
        EXPECT_EQ(Narrow(reply.body), row.body.substr(0, row.kept));
    }
}

TEST(FeedClient, SaysWhenTheServerCannotBeReached) {
    FeedWorld world;
    const std::u16string url = CScriptedServer({}).Url();
    EXPECT_EQ(world.client.PostFeedRequest(url, u"", true).outcome, FeedOutcome::kFailed);
    EXPECT_EQ(world.client.PostFeedRequest(u"https://localhost/", u"", true).outcome, FeedOutcome::kFailed);
    EXPECT_EQ(world.Messages(),
              (std::vector<std::string>{"Error!|!|Cannot update.\n\nPlease check your Internet connection.",
                                        "Error!|!|Error with server url"}));
    EXPECT_TRUE(world.registry.List().empty());
    EXPECT_EQ(world.connections.held, 0);
}

/// Ends the request when so many bytes of the body have come.
class CStopAt : public IHttpObserver {
public:
    explicit CStopAt(std::size_t bytes) : m_bytes(bytes) {}
    bool GoOn(const HttpProgress& progress) override { return progress.bodyBytesReceived < m_bytes; }

private:
    std::size_t m_bytes;
};

TEST(FeedClient, CancelLeavesEverythingAsItWas) {
    const std::string reply = FeedReplyBytes(std::string(200, 'x'), "1005", "9");
    for (const std::size_t stopAt : {std::size_t{0}, std::size_t{100}}) {
        FeedWorld world;
        world.settings.WriteString(RegistryRoot::kLocalMachine, keys::kRoamlytix, names::kNewsId, u"7");
        CScriptedServer server({{reply.substr(0, reply.size() - 50), Ending::kHold}});
        CStopAt observer(stopAt);
        const FeedReply got = world.client.PostFeedRequest(server.Url(), u"", false, &observer);
        EXPECT_EQ(got.outcome, FeedOutcome::kCancelled);
        EXPECT_TRUE(got.body.empty());
        EXPECT_TRUE(world.Messages().empty());
        EXPECT_EQ(world.Text(names::kSession), "(none)");
        EXPECT_EQ(world.Text(names::kNewsId), "7");
        EXPECT_EQ(world.Flag(names::kNewNews), -1);
        EXPECT_EQ(world.connections.held, 0);
    }
}

}  // namespace
}  // namespace rlx::test
