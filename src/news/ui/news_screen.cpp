#include "news/ui/news_screen.h"

#include <QAction>
#include <QHBoxLayout>
#include <QPainter>
#include <QVBoxLayout>

#include "base/text.h"
#include "news/text_ids.h"
#include "shell/boxes.h"
#include "shell/fill_text.h"
#include "shell/text_ids.h"
#include "uikit/icons.h"
#include "uikit/qt_text.h"

namespace rlx {

namespace {

constexpr int kButtonHeight = 32;
constexpr int kLongestLinkShown = 300;

}  // namespace

CNewsScreen::CNewsScreen(CNewsPage& page, const Ports& ports, OpenLink openLink)
    : m_page(page),
      m_ports(ports),
      m_openLink(std::move(openLink)),
      m_view(new CNewsView(
          ports.look, [this] { return Narrow(m_page.Html()); }, this)),
      m_bar(new CZoomBar(ports.look, this)),
      m_state(new QLabel(this)),
      m_fetch(new QPushButton(ToQString(ports.texts.Text(kTextFetchNews)), this)) {
    setObjectName("newsScreen");
    setFocusProxy(m_view);
    LayOut();
    MakeActions();
    connect(m_fetch, &QPushButton::clicked, this, &CNewsScreen::FetchChosen);
    connect(m_bar, &CZoomBar::Tapped, this, &CNewsScreen::Zoom);
    connect(m_view, &QTextBrowser::anchorClicked, this, &CNewsScreen::FollowLink);
    connect(&m_ports.look, &CLook::Changed, this, &CNewsScreen::TakeColours);
    TakeColours();
    Refresh();
}

void CNewsScreen::LayOut() {
    m_fetch->setObjectName("fetchNews");
    m_fetch->setMinimumHeight(kButtonHeight);
    m_state->setObjectName("newsState");
    m_state->setTextFormat(Qt::PlainText);
    auto* bar = new QHBoxLayout;
    bar->setContentsMargins(6, 4, 4, 4);
    bar->addWidget(m_state, 1);
    bar->addWidget(m_fetch);
    auto* column = new QVBoxLayout(this);
    column->setContentsMargins(0, 0, 0, 0);
    column->setSpacing(0);
    column->addLayout(bar);
    column->addWidget(m_view, 1);
    column->addWidget(m_bar);
}

/// The squares are out of reach of a keyboard.
void CNewsScreen::MakeActions() {
    const auto add = [this](int text, QKeySequence::StandardKey key, int by) {
        auto* action = new QAction(ToQString(m_ports.texts.Text(text)), this);
        action->setShortcuts(key);
        action->setShortcutContext(Qt::WidgetWithChildrenShortcut);
        connect(action, &QAction::triggered, this, [this, by] { Zoom(by > 0 ? m_bar->Plus() : m_bar->Minus()); });
        addAction(action);
    };
    add(kTextLargerText, QKeySequence::ZoomIn, 1);
    add(kTextSmallerText, QKeySequence::ZoomOut, -1);
}

void CNewsScreen::Refresh() {
    const NewsState state = m_page.State();
    m_today = m_ports.clock.Now().date;
    m_state->setText(state.newNews ? ToQString(m_ports.texts.Text(kTextNewNews)) : QString());
    if (!m_page.HasPage()) return m_bar->ShowOrigin({}, {});
    const QString mark = AreNewsStale(state, m_today) ? ToQString(m_ports.texts.Text(kTextStale)) : QString();
    m_bar->ShowOrigin(ToQString(NewsOriginText(state, m_ports.texts)), mark);
}

/// The strip is the lower end of the view: their right and bottom edges are the same.
void CNewsScreen::Zoom(const QPoint& tap) {
    m_view->Tap(tap, m_bar->size());
    m_bar->Enable(m_view->ZoomLevel() > CNewsZoom::kLeast, m_view->ZoomLevel() < CNewsZoom::kMost);
}

/// At midnight the page may go out of date.
void CNewsScreen::Tick() {
    if (m_ports.clock.Now().date != m_today) Refresh();
}

void CNewsScreen::Entered() {
    m_page.Show(*m_view);
    Refresh();
    emit PageShown();
}

bool CNewsScreen::GoBack() {
    emit BackChosen();
    return true;
}

/// A link within the page moves there; one that leads out of the program is only followed when the user agrees.
void CNewsScreen::FollowLink(const QUrl& link) {
    if (link.isRelative()) {
        if (!link.fragment().isEmpty()) m_view->scrollToAnchor(link.fragment());
        return;
    }
    const QString scheme = link.scheme();
    if (scheme != "http" && scheme != "https" && scheme != "mailto") return;
    const QString shown = link.toString(QUrl::FullyEncoded).left(kLongestLinkShown);
    const std::u16string question = FillText(m_ports.texts.Text(kTextAskOpenLink), {FromQString(shown)});
    if (m_ports.boxes.Show(QuestionBox(m_ports.texts, question)) == BoxAnswer::kYes) m_openLink(link);
}

void CNewsScreen::TakeColours() {
    setPalette(m_ports.look.Palette());
    m_fetch->setIcon(TintedIcon("update", m_ports.look.PanelText()));
    m_view->TakeColours();
    m_bar->update();
    update();
}

void CNewsScreen::paintEvent(QPaintEvent* /*event*/) {
    QPainter painter(this);
    m_ports.look.PaintBackground(painter, rect(), LookPicture::kCommon);
}

}  // namespace rlx
