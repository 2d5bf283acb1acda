#include "app/main_window.h"

#include <QCloseEvent>
#include <QKeyEvent>
#include <QShortcut>
#include <QTimer>
#include <QWindowStateChangeEvent>
#include <algorithm>
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
    connect(new QShortcut(Qt::Key_F10, this), &QShortcut::activated, m_titleBar, &CTitleBar::OpenMenu);
    connect(new QShortcut(QKeySequence::NextChild, this), &QShortcut::activated, this, [this] { StepScreen(1); });
    connect(new QShortcut(QKeySequence::PreviousChild, this), &QShortcut::activated, this, [this] { StepScreen(-1); });
    Arrange();
}

int CMainWindow::AddScreen(ScreenEntry entry, bool inRow) {
    if (inRow) {
        m_row->Add(entry.icon, ToQString(m_texts.Text(entry.titleText)));
        const int index = m_inRow++;
        auto* shortcut = new QShortcut(QKeySequence(QStringLiteral("Ctrl+%1").arg(index + 1)), this);
        connect(shortcut, &QShortcut::activated, this, [this, index] { ShowScreen(index); });
    }
    m_screens.push_back({std::move(entry)});
    return Count() - 1;
}

CScreen& CMainWindow::Screen(int index) {
    Slot& slot = m_screens[static_cast<std::size_t>(index)];
    if (slot.screen == nullptr) {
        slot.screen = slot.entry.make();
        slot.screen->setAccessibleName(ToQString(m_texts.Text(slot.entry.titleText)));
        m_stack->addWidget(slot.screen);
    }
    return *slot.screen;
}

/// One in each turn, so that a press meanwhile does not wait for all of them.
void CMainWindow::MakeNextScreen() {
    const auto next =
        std::find_if(m_screens.begin(), m_screens.end(), [](const Slot& slot) { return slot.screen == nullptr; });
    if (next == m_screens.end()) return;
    Screen(static_cast<int>(next - m_screens.begin()));
    QTimer::singleShot(0, this, &CMainWindow::MakeNextScreen);
}

bool CMainWindow::ShowScreen(int index) {
    if (index < 0 || index >= Count()) return false;
    CScreen* current = Current();
    const bool leaves = current != nullptr && index != m_current;
    if (leaves && isVisible() && !current->MayLeave()) {
        m_row->SetCurrent(m_current);
        return false;
    }
    m_stack->setCurrentWidget(&Screen(index));
    m_current = index;
    m_row->SetCurrent(index);
    m_titleBar->SetTitle(ToQString(m_texts.Text(Entry(index).titleText)));
    Current()->setFocus(Qt::OtherFocusReason);
    if (isVisible()) Current()->Entered();
    emit ScreenShown(index);
    return true;
}

QSize CMainWindow::LikelyContentSize() const {
    const RowForm form = Form();
    const int row = CScreenRow::LeastExtent(form.orientation, form.labels);
    const QSize below = size() - QSize(0, CTitleBar::kLeastHeight);
    return form.orientation == Qt::Vertical ? below - QSize(row, 0) : below - QSize(0, row);
}

void CMainWindow::SetColours(const FrameColours& colours) {
    m_titleBar->SetColours(colours.bar, colours.text);
    m_row->SetColours(colours.bar, colours.text);
}

void CMainWindow::SetFreshNews(bool fresh) {
    m_titleBar->SetNews(fresh, ToQString(m_texts.Text(fresh ? kTextNewNews : kTextScreenNews)));
}

void CMainWindow::RefreshScreens() {
    for (const Slot& slot : m_screens) {
        if (slot.screen != nullptr) slot.screen->Refresh();
    }
}

/// The row lies below an upright screen and beside a lying one, where height is scarce.
CMainWindow::RowForm CMainWindow::Form() const {
    if (width() > height()) return {Qt::Vertical, width() >= kWidthForSideLabels && height() >= kHeightForSideLabels};
    return {Qt::Horizontal, width() >= kWidthForBottomLabels && height() >= kHeightForBottomLabels};
}

void CMainWindow::Arrange() {
    const RowForm form = Form();
    m_layout->removeWidget(m_titleBar);
    m_layout->removeWidget(m_stack);
    m_layout->removeWidget(m_row);
    for (int i = 0; i < 3; ++i) {
        m_layout->setRowStretch(i, i == 1 ? 1 : 0);
        m_layout->setColumnStretch(i, i == 1 ? 1 : 0);
    }
    m_row->SetForm(form.orientation, form.labels);
    if (form.orientation == Qt::Vertical) {
        m_layout->addWidget(m_row, 0, 0, 2, 1);
        m_layout->addWidget(m_titleBar, 0, 1);
        m_layout->addWidget(m_stack, 1, 1);
    } else {
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
    const int from = IsInRow(m_current) ? m_current : outside;
    ShowScreen((from + by + m_inRow) % m_inRow);
}

void CMainWindow::paintEvent(QPaintEvent* event) {
    QWidget::paintEvent(event);
    // Behind the first frame: nobody waits for screens that are not seen, and what a screen has to say at first must
    // not come before it, nor before the window stands at its place, over which boxes appear.
    if (!std::exchange(m_seen, true)) QTimer::singleShot(0, this, &CMainWindow::BeSeen);
}

void CMainWindow::resizeEvent(QResizeEvent* /*event*/) {
    Arrange();
}

void CMainWindow::showEvent(QShowEvent* event) {
    RunTickerWhenSeen();
    if (!event->spontaneous()) m_seen = false;
}

void CMainWindow::BeSeen() {
    QTimer::singleShot(0, this, &CMainWindow::MakeNextScreen);
    if (const auto ask = std::exchange(m_askFirst, nullptr)) ask();
    if (CScreen* screen = Current()) screen->Entered();
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
