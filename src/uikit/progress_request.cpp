#include "uikit/progress_request.h"

#include <QCoreApplication>
#include <QDialog>
#include <QEvent>
#include <QEventLoop>
#include <QLabel>
#include <QProgressBar>
#include <QPushButton>
#include <QVBoxLayout>
#include <string>
#include <thread>

#include "shell/text_ids.h"
#include "uikit/qt_text.h"

namespace rlx {

namespace {

constexpr int kPatience = 250;  // milliseconds without a box
constexpr int kWidth = 220;
constexpr std::size_t kBlock = 16'384;

/// Stays until the work has noticed that it is not wanted any more, so that nothing else can be begun before.
class CWaitDialog : public QDialog {
public:
    CWaitDialog(QWidget* owner, std::atomic<bool>& cancelled) : QDialog(owner), m_cancelled(cancelled) {}

    void reject() override { m_cancelled = true; }

private:
    std::atomic<bool>& m_cancelled;
};

}  // namespace

CProgressBox::CProgressBox(const ITexts& texts, QWidget* owner)
    : m_dialog(std::make_unique<CWaitDialog>(owner, m_cancelled)), m_text(new QLabel(m_dialog.get())) {
    m_dialog->setObjectName("progressBox");
    m_dialog->setWindowModality(Qt::ApplicationModal);
    m_dialog->setMinimumWidth(kWidth);
    m_text->setTextFormat(Qt::PlainText);
    m_text->setWordWrap(true);
    m_text->setObjectName("progressText");
    auto* bar = new QProgressBar(m_dialog.get());
    bar->setRange(0, 0);
    bar->setTextVisible(false);
    auto* cancel = new QPushButton(ToQString(texts.Text(kTextCancel)), m_dialog.get());
    cancel->setObjectName("cancel");
    auto* column = new QVBoxLayout(m_dialog.get());
    column->addWidget(m_text);
    column->addWidget(bar);
    column->addWidget(cancel, 0, Qt::AlignRight);
    QObject::connect(cancel, &QPushButton::clicked, m_dialog.get(), &QDialog::reject);
    m_hide.setSingleShot(true);
    QObject::connect(&m_hide, &QTimer::timeout, m_dialog.get(), &QDialog::hide);
}

CProgressBox::~CProgressBox() = default;

void CProgressBox::SetTitle(const QString& title) {
    m_dialog->setWindowTitle(title);
}

void CProgressBox::SetText(const QString& text) {
    m_text->setText(text);
}

void CProgressBox::Run(const std::function<void()>& work) {
    m_hide.stop();
    QEventLoop loop;
    std::atomic<bool> done = false;
    std::thread worker([&] {
        work();
        done = true;
        QCoreApplication::postEvent(&loop, new QEvent(QEvent::Quit));
    });
    if (!m_dialog->isVisible()) {
        // Until the box stands nobody may press anything else: what is pressed waits.
        QTimer::singleShot(kPatience, &loop, &QEventLoop::quit);
        loop.exec(QEventLoop::ExcludeUserInputEvents);
    }
    if (!done) {
        m_dialog->show();
        loop.exec();
        if (!done) m_cancelled = true;  // the program is about to end
    }
    worker.join();
    m_hide.start(0);
}

/// Hands the thread's questions to the caller's observer too.
class CWatch : public IHttpObserver {
public:
    CWatch(const CProgressBox& box, IHttpObserver* next) : m_box(box), m_next(next) {}

    bool GoOn(const HttpProgress& progress) override {
        return !m_box.Cancelled() && (m_next == nullptr || m_next->GoOn(progress));
    }

private:
    const CProgressBox& m_box;
    IHttpObserver* m_next;
};

/// A reply that is received as a whole when its first bytes are asked for.
class CProgressRequest::CReply : public IHttpReply {
public:
    CReply(CProgressRequest& request, std::unique_ptr<CWatch> watch, std::unique_ptr<IHttpReply> reply)
        : m_request(request), m_watch(std::move(watch)), m_reply(std::move(reply)) {}

    int Status() const override { return m_reply->Status(); }
    const std::string& RawHeaders() const override { return m_reply->RawHeaders(); }
    HttpFailure Failure() const override { return m_reply->Failure(); }

    std::optional<std::size_t> Read(char* buffer, std::size_t size) override {
        if (!m_received) m_request.Run(kTextReceiving, [this] { Receive(); });
        m_received = true;
        const std::size_t taken = m_body.copy(buffer, size, m_at);
        m_at += taken;
        return taken == 0 && m_broken ? std::nullopt : std::optional(taken);
    }

private:
    void Receive() {
        std::string block(kBlock, '\0');
        for (;;) {
            const std::optional<std::size_t> count = m_reply->Read(block.data(), block.size());
            m_broken = !count.has_value();
            if (!count || *count == 0) return;
            m_body.append(block, 0, *count);
        }
    }

    CProgressRequest& m_request;
    std::unique_ptr<CWatch> m_watch;
    std::unique_ptr<IHttpReply> m_reply;
    std::string m_body;
    std::size_t m_at = 0;
    bool m_received = false;
    bool m_broken = false;
};

CProgressRequest::CProgressRequest(IHttpSession& http, const ITexts& texts, QWidget* owner, const QString& title)
    : m_http(http), m_texts(texts), m_box(texts, owner) {
    m_box.SetTitle(title);
}

HttpAnswer CProgressRequest::Post(const HttpPost& post, IHttpObserver* observer) {
    if (Cancelled()) return {nullptr, kHttpCancelled};
    auto watch = std::make_unique<CWatch>(m_box, observer);
    HttpAnswer answer;
    Run(kTextWaitingForReply, [&] { answer = m_http.Post(post, watch.get()); });
    if (answer.reply) answer.reply = std::make_unique<CReply>(*this, std::move(watch), std::move(answer.reply));
    return answer;
}

void CProgressRequest::Run(int stage, const std::function<void()>& work) {
    const QString text = ToQString(m_texts.Text(stage));
    m_box.SetText(m_subject.isEmpty() ? text : m_subject + '\n' + text);
    m_box.Run(work);
}

}  // namespace rlx
