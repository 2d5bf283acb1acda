#include "news/ui/news_view.h"

#include <QImage>
#include <QMouseEvent>
#include <QTextDocument>
#include <QTextFrame>
#include <algorithm>
#include <array>

#include "base/text.h"
#include "news/news_cleaner.h"
#include "uikit/qt_text.h"

namespace rlx {

namespace {

constexpr std::array kTextSizes = {11, 13, 15, 18, 23};  // pixels, by zoom level
constexpr int kWidestText = 820;                         // pixels
static_assert(kTextSizes.size() == CNewsZoom::kMost + 1);

}  // namespace

CNewsView::CNewsView(const CLook& look, ReadPage readPage, QWidget* parent)
    : QTextBrowser(parent), m_look(look), m_readPage(std::move(readPage)) {
    setObjectName("newsView");
    setOpenLinks(false);
    setFrameShape(QFrame::NoFrame);
    setUndoRedoEnabled(false);
    setHorizontalScrollBarPolicy(Qt::ScrollBarAsNeeded);
    TakeColours();
    Tap({-1, -1}, {});
}

void CNewsView::ClearText() {
    m_html.clear();
    clear();
}

void CNewsView::AddText(const std::u16string& html) {
    m_html += ToQString(html);
}

void CNewsView::EndOfSource() {
    ShowPage(m_html);
}

/// The only page that the view is ever sent to is the one of its own program.
void CNewsView::Navigate(const std::u16string&) {
    const std::string bytes = m_readPage();
    ShowPage(ToQString(CleanNewsPage(IsUtf8(bytes) ? FromUtf8(bytes) : FromWindows1252(bytes))));
}

/// A sound picture of nothing, whatever is asked for: the document would read a file itself when it is given nothing or
/// what is no picture, and what it was given for a style sheet it takes for a picture of the same name too.
QVariant CNewsView::loadResource(int /*type*/, const QUrl& /*name*/) {
    QImage clear(1, 1, QImage::Format_ARGB32);
    clear.fill(Qt::transparent);
    return clear;
}

void CNewsView::TakeColours() {
    QPalette palette = m_look.Palette();
    palette.setColor(QPalette::Base, m_look.Panel());
    palette.setColor(QPalette::Text, m_look.PanelText());
    setPalette(palette);
    viewport()->update();
}

void CNewsView::Tap(const QPoint& point, const QSize& area) {
    const int level = m_zoom.Tap(point.x(), point.y(), area.width(), area.height());
    QFont size = font();
    size.setPixelSize(kTextSizes.at(static_cast<std::size_t>(level)));
    document()->setDefaultFont(size);
}

/// Lines wider than this are hard to read: the rest of a wide view is margin.
void CNewsView::resizeEvent(QResizeEvent* event) {
    Centre();
    QTextBrowser::resizeEvent(event);
}

void CNewsView::Centre() {
    const double margin = std::max(document()->documentMargin(), (width() - kWidestText) / 2.0);
    QTextFrameFormat format = document()->rootFrame()->frameFormat();
    if (format.leftMargin() == margin) return;
    format.setLeftMargin(margin);
    format.setRightMargin(margin);
    document()->rootFrame()->setFrameFormat(format);
}

void CNewsView::ShowPage(const QString& html) {
    setHtml(html);
    Centre();
}

/// The squares lie below the text, so a tap on it changes nothing, but the level is sent again.
void CNewsView::mousePressEvent(QMouseEvent* event) {
    if (event->button() == Qt::LeftButton) Tap({-1, -1}, {});
    QTextBrowser::mousePressEvent(event);
}

}  // namespace rlx
