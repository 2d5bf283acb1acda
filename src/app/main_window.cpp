#include "app/main_window.h"

#include <QCloseEvent>
#include <QKeyEvent>
#include <QShortcut>
#include <QTimer>
#include <QWindowStateChangeEvent>
#include <utility>

#include "app/text_ids.h"
#include "news/text_ids.h"
#include "shell/text_ids.h"
#include "uikit/qt_text.h"

namespace rlx {

namespace {

constexpr int kSmallestWidth = 240;
constexpr int kSmallestHeight = 240;
constexpr int kFirstWidth = 480;
constexpr int kFirstHeight = 640;
constexpr int kWidthForSideLabels = 760;
constexpr int kHeightForSideLabels = 400;
constexpr int kWidthForBottomLabels = 340;
constexpr int kHeightForBottomLabels = 480;

}  // namespace

CMainWindow::CMainWindow(const IClock& clock, const ITexts& texts)
    : m_texts(texts),
      m_titleBar(new CTitleBar(this)),
      m_stack(new QStackedWidget(this)),
      m_row(new CScreenRow(this)),
      m_layout(new QGridLayout(this)),
      m_menu(this),
      m_ticker(clock) {
    setObjectName("mainWindow");
    setWindowTitle(ToQString(texts.Text(kTextAppName)));
    setMinimumSize(kSmallestWidth, kSmallestHeight);
    resize(kFirstWidth, kFirstHeight);
    m_layout->setContentsMargins(0, 0, 0, 0);
    m_layout->setSpacing(0);
    m_titleBar->SetMenu(&m_menu, ToQString(texts.Text(kTextMenu)));
    m_titleBar->SetNews(false, ToQString(texts.Text(kTextScreenNews)));
    connect(&m_menu, &QMenu::aboutToShow, this, &CMainWindow::AboutToShowMenu);
    connect(m_titleBar, &CTitleBar::NewsChosen, this, &CMainWindow::NewsChosen);
    connect(m_row, &CScreenRow::Chosen, this, &CMainWindow::ShowScreen);
    connect(&m_ticker, &CSecondTicker::Ticked, this, [this] {
        if (CScreen* screen = Current()) screen->Tick();
    });
    connect(new QShortcut(QKeySequence::NextChild, this), &QShortcut::activated, this, [this] { StepScreen(1); });
    connect(new QShortcut(QKeySequence::PreviousChild, this), &QShortcut::activated, this, [this] { StepScreen(-1); });
    Arrange();
}

int CMainWindow::AddScreen(CScreen* screen, bool inRow) {
    const QString title = ToQString(m_texts.Text(screen->TitleText()));
    screen->setAccessibleName(title);
    m_screens.push_back(screen);
    if (inRow) {
        m_row->Add(screen->IconName(), title);
        const int index = m_inRow++;
        auto* shortcut = new QShortcut(QKeySequence(QStringLiteral("Ctrl+%1").arg(index + 1)), this);
        connect(shortcut, &QShortcut::activated, this, [this, index] { ShowScreen(index); });
    }
    return m_stack->addWidget(screen);
}

bool CMainWindow::ShowScreen(int index) {
    if (index < 0 || index >= m_stack->count()) return false;
    CScreen* current = Current();
    const bool leaves = current != nullptr && index != m_stack->currentIndex();
    if (leaves && isVisible() && !current->MayLeave()) {
        m_row->SetCurrent(m_stack->currentIndex());
        return false;
    }
    m_stack->setCurrentIndex(index);
    m_row->SetCurrent(index);
    m_titleBar->SetTitle(ToQString(m_texts.Text(Current()->TitleText())));
    Current()->setFocus(Qt::OtherFocusReason);
    if (isVisible()) Current()->Entered();
    emit ScreenShown(index);
    return true;
}

CScreen* CMainWindow::Current() const {
    return qobject_cast<CScreen*>(m_stack->currentWidget());
}

void CMainWindow::SetColours(const FrameColours& colours) {
    m_titleBar->SetColours(colours.bar, colours.text);
    m_row->SetColours(colours.bar, colours.text);
}

void CMainWindow::SetFreshNews(bool fresh) {
    m_titleBar->SetNews(fresh, ToQString(m_texts.Text(fresh ? kTextNewNews : kTextScreenNews)));
}

void CMainWindow::RefreshScreens() {
    for (CScreen* screen : m_screens)
        screen->Refresh();
}

/// The row lies below an upright screen and beside a lying one, where height is scarce.
void CMainWindow::Arrange() {
    const bool lying = width() > height();
    m_layout->removeWidget(m_titleBar);
    m_layout->removeWidget(m_stack);
    m_layout->removeWidget(m_row);
    for (int i = 0; i < 3; ++i) {
        m_layout->setRowStretch(i, i == 1 ? 1 : 0);
        m_layout->setColumnStretch(i, i == 1 ? 1 : 0);
    }
    if (lying) {
        m_row->SetForm(Qt::Vertical, width() >= kWidthForSideLabels && height() >= kHeightForSideLabels);
        m_layout->addWidget(m_row, 0, 0, 2, 1);
        m_layout->addWidget(m_titleBar, 0, 1);
        m_layout->addWidget(m_stack, 1, 1);
    } else {
        m_row->SetForm(Qt::Horizontal, width() >= kWidthForBottomLabels && height() >= kHeightForBottomLabels);
        m_layout->addWidget(m_titleBar, 0, 0, 1, 2);
        m_layout->addWidget(m_stack, 1, 0, 1, 2);
        m_layout->addWidget(m_row, 2, 0, 1, 2);
    }
}

void CMainWindow::RunTickerWhenSeen() {
    if (isVisible() && !isMinimized()) {
        if (CScreen* screen = Current(); screen != nullptr && !m_ticker.IsRunning()) screen->Tick();
        m_ticker.Start();
    } else {
        m_ticker.Stop();
    }
}

void CMainWindow::StepScreen(int by) {
    if (m_inRow == 0) return;
    // From a screen outside the row the step leads to one of its ends.
    const int outside = by > 0 ? -1 : m_inRow;
    const int from = IsInRow(m_stack->currentIndex()) ? m_stack->currentIndex() : outside;
    ShowScreen((from + by + m_inRow) % m_inRow);
}

void CMainWindow::resizeEvent(QResizeEvent* /*event*/) {
    Arrange();
}

void CMainWindow::showEvent(QShowEvent* event) {
    RunTickerWhenSeen();
    if (event->spontaneous()) return;
    // Once the window stands there: what a screen has to say at first must not come before it.
    QTimer::singleShot(0, this, [this] {
        if (const auto ask = std::exchange(m_askFirst, nullptr)) ask();
        if (CScreen* screen = Current()) screen->Entered();
    });
}

void CMainWindow::hideEvent(QHideEvent* /*event*/) {
    RunTickerWhenSeen();
}

void CMainWindow::changeEvent(QEvent* event) {
    QWidget::changeEvent(event);
    if (event->type() == QEvent::WindowStateChange) RunTickerWhenSeen();
}

void CMainWindow::closeEvent(QCloseEvent* event) {
    CScreen* current = Current();
    event->setAccepted(current == nullptr || current->MayLeave());
}

void CMainWindow::keyPressEvent(QKeyEvent* event) {
    if (event->key() == Qt::Key_Escape && Current() != nullptr && Current()->GoBack()) return;
    QWidget::keyPressEvent(event);
}

}  // namespace rlx
