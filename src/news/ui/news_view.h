#pragma once

#include <QTextBrowser>
#include <functional>

#include "news/news_page.h"
#include "news/news_zoom.h"
#include "uikit/look.h"

namespace rlx {

/// Shows a page of HTML and nothing else: it loads no picture, no style sheet and no other page, and runs nothing. The
/// size of its text follows taps. User-interface thread.
class CNewsView : public QTextBrowser, public INewsView {
    Q_OBJECT

public:
    /// Gives the page that the view is sent to, as bytes.
    using ReadPage = std::function<std::string()>;

    CNewsView(const CLook& look, ReadPage readPage, QWidget* parent);

    void ClearText() override;
    void AddText(const std::u16string& html) override;
    void EndOfSource() override;
    void Navigate(const std::u16string& url) override;

    int ZoomLevel() const { return m_zoom.Level(); }

    /// A tap at a point of an area of that size, which has the two squares of `CNewsZoom` in its corner.
    void Tap(const QPoint& point, const QSize& area);
    void TakeColours();

    QVariant loadResource(int type, const QUrl& name) override;

protected:
    void mousePressEvent(QMouseEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;

private:
    void ShowPage(const QString& html);
    void Centre();

    const CLook& m_look;
    const ReadPage m_readPage;
    CNewsZoom m_zoom;
    QString m_html;
};

}  // namespace rlx
