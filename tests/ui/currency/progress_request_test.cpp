#include "uikit/progress_request.h"

#include <QDialog>
#include <QLabel>
#include <QPushButton>
#include <QTimer>
#include <thread>

#include "shell/resources.h"

namespace rlx {
namespace {

/// Answers at once, or only when the caller wants no more.
class CSlowServer : public IHttpSession {
public:
    class CReply : public IHttpReply {
    public:
        explicit CReply(std::string body) : m_body(std::move(body)) {}
        int Status() const override { return 200; }
        const std::string& RawHeaders() const override { return m_headers; }
        HttpFailure Failure() const override { return m_broken ? kHttpConnectionReset : kHttpNoFailure; }
        std::optional<std::size_t> Read(char* buffer, std::size_t size) override {
            threads.push_back(std::this_thread::get_id());
            if (m_body == "broken") m_broken = true;
            if (m_broken) return std::nullopt;
            const std::size_t taken = m_body.copy(buffer, size);
            m_body.erase(0, taken);
            return taken;
        }
        std::vector<std::thread::id> threads;

    private:
        std::string m_headers = "HTTP/1.1 200 OK\r\n\r\n";
        std::string m_body;
        bool m_broken = false;
    };

    HttpAnswer Post(const HttpPost& post, IHttpObserver* observer) override {
        ++posts;
        thread = std::this_thread::get_id();
        while (hangs) {
            if (!observer->GoOn({})) return {nullptr, kHttpCancelled};
        }
        return {std::make_unique<CReply>(post.body), kHttpNoFailure};
    }

    bool hangs = false;
    int posts = 0;
    std::thread::id thread;
};

class ProgressRequest : public ::testing::Test {
protected:
    QDialog* Box() { return window.findChild<QDialog*>("progressBox"); }

    CSlowServer server;
    CResources resources;
    QWidget window;
    CProgressRequest request{server, resources, &window, "Updating"};
};

TEST_F(ProgressRequest, HandsTheReplyThroughWithoutABoxWhenItIsQuick) {
    HttpPost post;
    post.body = std::string(40'000, 'x');
    const HttpAnswer answer = request.Post(post, nullptr);
    ASSERT_TRUE(answer.reply);
    EXPECT_NE(server.thread, std::this_thread::get_id());
    std::string body;
    char block[2048];
    while (const auto count = answer.reply->Read(block, sizeof block)) {
        if (*count == 0) break;
        body.append(block, *count);
    }
    EXPECT_EQ(body, post.body);
    EXPECT_FALSE(Box()->isVisible());
}

TEST_F(ProgressRequest, TellsABrokenBodyFromItsEnd) {
    HttpPost post;
    post.body = "broken";
    const HttpAnswer answer = request.Post(post, nullptr);
    char byte = 0;
    EXPECT_EQ(answer.reply->Read(&byte, 1), std::nullopt);
    EXPECT_EQ(answer.reply->Failure(), kHttpConnectionReset);
}

TEST_F(ProgressRequest, CancelEndsThisAndEveryFurtherRequest) {
    server.hangs = true;
    QString read;
    // Only runs when the window goes on working while the request hangs.
    QTimer poll;
    QObject::connect(&poll, &QTimer::timeout, [&] {
        if (!Box()->isVisible()) return;
        read = Box()->windowTitle() + ": " + Box()->findChild<QLabel*>("progressText")->text();
        Box()->findChild<QPushButton*>("cancel")->click();
        poll.stop();
    });
    poll.start(5);
    request.SetSubject("Paris");
    const HttpAnswer answer = request.Post({}, nullptr);
    EXPECT_EQ(answer.failure, kHttpCancelled);
    EXPECT_EQ(read, "Updating: Paris\nWaiting for the reply...");
    EXPECT_FALSE(Box()->isVisible());
    EXPECT_EQ(request.Post({}, nullptr).failure, kHttpCancelled);
    EXPECT_EQ(server.posts, 1);
}

}  // namespace
}  // namespace rlx
