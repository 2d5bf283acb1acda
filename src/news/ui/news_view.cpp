#include "news/ui/news_view.h"

#include <QMouseEvent>
#include <QPainter>
#include <QTextDocument>
#include <QTextFrame>
#include <array>

#include "base/text.h"
#include "uikit/icons.h"
#include "uikit/qt_text.h"

namespace rlx {

namespace {

constexpr std::array kTextSizes = {11, 13, 15, 18, 23};  // pixels, by zoom level
static_assert(kTextSizes.size() == CNewsZoom::kMost + 1);

// The squares: both 20 pixels wide, at these distances from the corner.
constexpr int kSquare = 20;
constexpr int kPlusAway = 23;
constexpr int kMinusAway = 46;
constexpr int kRoomForSquares = 30;

}  // namespace

CNewsView::CNewsView(const CLook& look, ReadPage readPage, QWidget* parent)
    : QTextBrowser(parent), m_look(look), m_readPage(std::move(readPage)) {
    setObjectName("newsView");
    setOpenLinks(false);
    setFrameShape(QFrame::NoFrame);
    setUndoRedoEnabled(false);
    setHorizontalScrollBarPolicy(Qt::ScrollBarAsNeeded);
    TakeColours();
    StepZoom(0);
}

void CNewsView::ClearText() {
    m_html.clear();
    clear();
}

void CNewsView::AddText(const std::u16string& html) {
    m_html += ToQString(html);
}

void CNewsView::EndOfSource() {
    ShowHtml(m_html);
}

/// The only page that the view is ever sent to is the one of its own program.
void CNewsView::Navigate(const std::u16string&) {
    const std::string bytes = m_readPage();
    ShowHtml(ToQString(IsUtf8(bytes) ? FromUtf8(bytes) : FromWindows1252(bytes)));
}

void CNewsView::ShowHtml(const QString& html) {
    setHtml(html);
    QTextFrameFormat format = document()->rootFrame()->frameFormat();
    format.setBottomMargin(kRoomForSquares);
    document()->rootFrame()->setFrameFormat(format);
}

/// Something empty, because the document would read a file itself when it is given nothing.
QVariant CNewsView::loadResource(int /*type*/, const QUrl& /*name*/) {
    return QByteArray();
}

void CNewsView::TakeColours() {
    QPalette palette = m_look.Palette();
    palette.setColor(QPalette::Base, m_look.Panel());
    palette.setColor(QPalette::Text, m_look.PanelText());
    setPalette(palette);
    viewport()->update();
}

void CNewsView::Tap(const QPoint& point) {
    const int level = m_zoom.Tap(point.x(), point.y(), viewport()->width(), viewport()->height());
    QFont size = font();
    size.setPixelSize(kTextSizes.at(static_cast<std::size_t>(level)));
    document()->setDefaultFont(size);
    viewport()->update();
}

void CNewsView::StepZoom(int by) {
    if (by == 0) return Tap({-1, -1});
    const int away = by > 0 ? kPlusAway : kMinusAway;
    Tap({viewport()->width() - away + kSquare / 2, viewport()->height() - kPlusAway + kSquare / 2});
}

void CNewsView::mousePressEvent(QMouseEvent* event) {
    if (event->button() == Qt::LeftButton) Tap(event->position().toPoint());
    QTextBrowser::mousePressEvent(event);
}

void CNewsView::paintEvent(QPaintEvent* event) {
    QTextBrowser::paintEvent(event);
    QPainter painter(viewport());
    painter.setRenderHint(QPainter::Antialiasing);
    const auto paintSquare = [&](int away, const char* icon, bool enabled) {
        const QRect square(viewport()->width() - away, viewport()->height() - kPlusAway, kSquare, kSquare);
        painter.setOpacity(enabled ? 1 : 0.4);
        painter.setPen(m_look.PanelText());
        painter.setBrush(m_look.Bar());
        painter.drawRoundedRect(QRectF(square).adjusted(0.5, 0.5, -0.5, -0.5), 4, 4);
        painter.drawPixmap(square.topLeft() + QPoint(3, 3),
                           TintedPixmap(icon, m_look.PanelText(), kSquare - 6, devicePixelRatioF()));
    };
    paintSquare(kPlusAway, "plus", m_zoom.Level() < CNewsZoom::kMost);
    paintSquare(kMinusAway, "minus", m_zoom.Level() > CNewsZoom::kLeast);
}

}  // namespace rlx
