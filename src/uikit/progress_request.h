#pragma once

#include <QString>
#include <QTimer>
#include <QWidget>
#include <atomic>
#include <functional>
#include <memory>

#include "platform/http_session.h"
#include "shell/texts.h"

class QDialog;
class QLabel;

namespace rlx {

/// A modal progress box with Cancel for work that takes long: the work runs on a thread of its own while the window
/// goes on painting. Work that is quickly done shows no box. Made and used on the user-interface thread.
class CProgressBox {
public:
    CProgressBox(const ITexts& texts, QWidget* owner);
    ~CProgressBox();
    CProgressBox(const CProgressBox&) = delete;
    CProgressBox& operator=(const CProgressBox&) = delete;

    void SetTitle(const QString& title);
    void SetText(const QString& text);

    /// Runs `work` on a thread of its own and returns when it is done. The work must look at `Cancelled` now and then,
    /// and must touch neither widgets nor anything else that belongs to the user-interface thread. The box goes as
    /// soon as something else is shown or done after the work, so that message boxes stand alone and work that
    /// follows at once finds it standing. What `work` throws ends the program.
    void Run(const std::function<void()>& work);

    /// True once the user has pressed Cancel. Any thread.
    bool Cancelled() const { return m_cancelled; }

private:
    std::atomic<bool> m_cancelled = false;
    std::unique_ptr<QDialog> m_dialog;
    QLabel* m_text;
    QTimer m_hide;
};

/// HTTP whose waiting happens behind a progress box, so that a caller on the user-interface thread may simply wait for
/// the answer: only sending and receiving run on another thread, everything that the caller does with settings,
/// databases and message boxes stays where it was. Make one for one update; after Cancel every further request of it
/// ends at once with `kHttpCancelled`. User-interface thread; replies must not outlive it.
class CProgressRequest : public IHttpSession {
public:
    CProgressRequest(IHttpSession& http, const ITexts& texts, QWidget* owner, const QString& title);

    HttpAnswer Post(const HttpPost& post, IHttpObserver* observer) override;

    /// Stands above "Waiting for the reply..." and the like; empty at first.
    void SetSubject(const QString& subject) { m_subject = subject; }

    bool Cancelled() const { return m_box.Cancelled(); }

private:
    class CReply;

    void Run(int stage, const std::function<void()>& work);

    IHttpSession& m_http;
    const ITexts& m_texts;
    CProgressBox m_box;
    QString m_subject;
};

}  // namespace rlx
