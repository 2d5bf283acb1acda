#include "uikit/progress_request.h"

#include <algorithm>
#include <thread>

#include "shell/resources.h"

namespace rlx {
namespace {

constexpr std::size_t kBodySize = 100'000;

/// A server that drips: headers and bytes come only as the test lets them, and every wait looks at the observer.
class CDrip : public IHttpSession {
public:
    std::atomic<bool> headers = false;
    std::atomic<bool> body = false;
    std::atomic<bool> breaks = false;
    std::atomic<int> posts = 0;
    std::atomic<std::thread::id> thread;

    class CReply : public IHttpReply {
    public:
        CReply(CDrip& drip, IHttpObserver* observer) : m_drip(drip), m_observer(observer) {}
        int Status() const override { return 200; }
        const std::string& RawHeaders() const override { return m_headers; }
        HttpFailure Failure() const override { return m_failure; }
        std::optional<std::size_t> Read(char* buffer, std::size_t size) override {
            if (!m_drip.Wait(m_drip.body, m_observer)) m_failure = kHttpCancelled;
            if (m_drip.breaks) m_failure = kHttpConnectionReset;
            if (m_failure != kHttpNoFailure) return std::nullopt;
            const std::size_t count = std::min(size, kBodySize - m_sent);
            std::fill_n(buffer, count, 'x');
            m_sent += count;
            return count;
        }

    private:
        CDrip& m_drip;
        IHttpObserver* m_observer;
        std::string m_headers = "HTTP/1.1 200 OK\r\n\r\n";
        HttpFailure m_failure = kHttpNoFailure;
        std::size_t m_sent = 0;
    };

    HttpAnswer Post(const HttpPost&, IHttpObserver* observer) override {
        ++posts;
        thread = std::this_thread::get_id();
        if (!Wait(headers, observer)) return {nullptr, kHttpCancelled};
        return {std::make_unique<CReply>(*this, observer), kHttpNoFailure};
    }

    bool Wait(const std::atomic<bool>& what, IHttpObserver* observer) {
        while (!what) {
            if (!observer->GoOn({})) return false;
            std::this_thread::sleep_for(std::chrono::milliseconds(5));
        }
        return true;
    }
};

/// Counts how often it is painted.
class CWindow : public QWidget {
public:
    int paints = 0;
    void paintEvent(QPaintEvent* /*event*/) override { ++paints; }
};

class ProgressRequest : public ::testing::Test {
protected:
    ProgressRequest() {
        window.resize(240, 320);
        window.show();
    }

    QDialog* Box() { return window.findChild<QDialog*>("progressBox"); }
    QString Words() { return Box()->findChild<QLabel*>("progressText")->text(); }

    /// Runs `act` as soon as the box stands.
    void WhenShown(std::function<void()> act) {
        auto* timer = new QTimer(&window);
        QObject::connect(timer, &QTimer::timeout, &window, [this, timer, act = std::move(act)] {
            if (!Box()->isVisible()) return;
            timer->stop();
            act();
        });
        timer->start(5);
    }

    CWindow window;
    CResources resources;
    CDrip server;
    CProgressRequest request{server, resources, &window, "Updating"};
};

std::size_t SizeOf(IHttpReply& reply) {
    std::size_t size = 0;
    char block[1000];
    for (;;) {
        const auto count = reply.Read(block, sizeof block);
        if (!count) return std::string::npos;
        if (*count == 0) return size;
        size += *count;
    }
}

TEST_F(ProgressRequest, TheWindowGoesOnPaintingWhileTheServerThinks) {
    request.SetSubject("Paris: 1 of 4");
    QString waiting;
    int paints = 0;
    WhenShown([&] {
        waiting = Words();
        EXPECT_EQ(QApplication::activeModalWidget(), Box());
        const int before = window.paints;
        window.repaint();
        paints = window.paints - before;
        server.headers = true;
    });
    const HttpAnswer answer = request.Post({}, nullptr);
    EXPECT_EQ(waiting, "Paris: 1 of 4\nWaiting for the reply...");
    EXPECT_EQ(paints, 1);
    EXPECT_NE(server.thread.load(), std::this_thread::get_id());
    EXPECT_TRUE(Box()->isVisible()) << "it stands until it is known that nothing follows";
    WhenShown([this] { server.body = true; });
    ASSERT_NE(answer.reply, nullptr);
    EXPECT_EQ(SizeOf(*answer.reply), kBodySize);
    EXPECT_TRUE(Words().endsWith("Receiving..."));
    QCoreApplication::processEvents();
    EXPECT_FALSE(Box()->isVisible());
}

TEST_F(ProgressRequest, AQuickServerShowsNoBox) {
    server.headers = server.body = true;
    const HttpAnswer answer = request.Post({}, nullptr);
    EXPECT_EQ(SizeOf(*answer.reply), kBodySize);
    EXPECT_FALSE(Box()->isVisible());
}

TEST_F(ProgressRequest, TellsABrokenBodyFromItsEnd) {
    server.headers = server.body = server.breaks = true;
    const HttpAnswer answer = request.Post({}, nullptr);
    EXPECT_EQ(SizeOf(*answer.reply), std::string::npos);
    EXPECT_EQ(answer.reply->Failure(), kHttpConnectionReset);
}

TEST_F(ProgressRequest, CancelEndsThisRequestAndAllThatWouldFollow) {
    const auto cancel = [this] { QTest::mouseClick(Box()->findChild<QPushButton*>("cancel"), Qt::LeftButton); };
    server.headers = true;
    const HttpAnswer answer = request.Post({}, nullptr);
    ASSERT_NE(answer.reply, nullptr);
    WhenShown(cancel);
    EXPECT_EQ(SizeOf(*answer.reply), std::string::npos);
    EXPECT_EQ(answer.reply->Failure(), kHttpCancelled);
    EXPECT_EQ(request.Post({}, nullptr).failure, kHttpCancelled);
    EXPECT_EQ(server.posts, 1);
    EXPECT_TRUE(request.Cancelled());
}

}  // namespace
}  // namespace rlx
