#pragma once

#include <QLabel>
#include <QPushButton>
#include <QUrl>
#include <functional>

#include "news/news_page.h"
#include "news/ui/news_view.h"
#include "news/ui/zoom_bar.h"
#include "platform/clock.h"
#include "platform/message_boxes.h"
#include "uikit/look.h"
#include "uikit/screen.h"

namespace rlx {

/// The last news page and the way to a newer one. Stands outside the row of screens. User-interface thread.
class CNewsScreen : public CScreen {
    Q_OBJECT

public:
    using OpenLink = std::function<void(const QUrl&)>;

    /// What the screen works with; all of it outlives the screen.
    struct Ports {
        const IClock& clock;
        const ITexts& texts;
        IMessageBoxes& boxes;
        const CLook& look;
    };

    /// `openLink` opens a link outside the program; it is only called after the user has agreed.
    CNewsScreen(CNewsPage& page, const Ports& ports, OpenLink openLink);

    void Refresh() override;
    void Tick() override;
    bool GoBack() override;

    /// Shows the page, which then counts as read.
    void Entered() override;

signals:
    /// The user wants the newest page.
    void FetchChosen();

    /// The page was shown: the flags of the news have changed.
    void PageShown();

    /// The user wants to go back to where the page was called from.
    void BackChosen();

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    void MakeActions();
    void LayOut();
    void Zoom(const QPoint& tap);
    void FollowLink(const QUrl& link);
    void TakeColours();

    CNewsPage& m_page;
    const Ports m_ports;
    OpenLink m_openLink;
    CNewsView* m_view;
    CZoomBar* m_bar;
    QLabel* m_state;
    QPushButton* m_fetch;
    Date m_today;  ///< for which the age of the page was told
};

}  // namespace rlx
