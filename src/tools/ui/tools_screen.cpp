#include "tools/ui/tools_screen.h"

#include <QMouseEvent>
#include <QPainter>
#include <QShortcut>
#include <QVBoxLayout>
#include <cmath>

#include "shell/setting_names.h"
#include "tools/ui/text_ids.h"
#include "uikit/qt_text.h"

namespace rlx {

namespace {

constexpr double kSwipe = 60;  // pixels that a finger moves along, at least twice of what it moves across

}  // namespace

CToolsScreen::CToolsScreen(CRegistryStore& settings, const ITexts& texts, const CLook& look)
    : m_settings(settings),
      m_texts(texts),
      m_look(look),
      m_header(new CToolHeader(ToQString(texts.Text(kTextBackToTools)), look, this)),
      m_stack(new QStackedWidget(this)),
      m_list(new CToolList(look, m_stack)) {
    setObjectName("toolsScreen");
    m_stack->addWidget(m_list);
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(0);
    layout->addWidget(m_header);
    layout->addWidget(m_stack, 1);
    m_header->hide();
    connect(m_header, &CToolHeader::BackChosen, this, [this] { ShowPage(std::nullopt); });
    connect(m_list, &CToolList::Chosen, this, [this](int index) { ShowPage(static_cast<std::size_t>(index)); });
    connect(&m_look, &CLook::Changed, this, [this] {
        Refresh();
        update();
    });
    for (const auto& [keys, by] : {std::pair("Ctrl+PgUp", -1), std::pair("Ctrl+PgDown", 1)}) {
        auto* shortcut = new QShortcut(QKeySequence(QLatin1String(keys)), this);
        shortcut->setContext(Qt::WidgetWithChildrenShortcut);
        connect(shortcut, &QShortcut::activated, this, [this, step = by] { StepPage(step); });
    }
}

void CToolsScreen::AddPage(CToolPage* page) {
    const QString title = ToQString(m_texts.Text(page->TitleText()));
    page->setAccessibleName(title);
    m_list->Add(page->IconName(), title);
    m_stack->addWidget(page);
    m_pages.push_back(page);
    const std::uint32_t last = m_settings.ReadDwordOr(keys::kRoamlytix, names::kToolPage, 0);
    if (last == m_pages.size()) Open(m_pages.size() - 1);
}

CToolPage* CToolsScreen::Current() const {
    return m_current ? m_pages[*m_current] : nullptr;
}

bool CToolsScreen::ShowPage(std::optional<std::size_t> index) {
    if (index && *index >= m_pages.size()) return false;
    if (index != m_current && !MayLeave()) return false;
    const std::optional<std::size_t> last = m_current;
    Open(index);
    m_settings.WriteDword(RootOf(keys::kRoamlytix), keys::kRoamlytix, names::kToolPage,
                          index ? static_cast<std::uint32_t>(*index + 1) : 0);
    if (CToolPage* page = Current()) {
        page->Entered();
    } else {
        m_list->FocusTool(static_cast<int>(last.value_or(0)));
    }
    return true;
}

void CToolsScreen::Open(std::optional<std::size_t> index) {
    m_current = index;
    CToolPage* page = Current();
    if (page != nullptr) m_header->SetTitle(ToQString(m_texts.Text(page->TitleText())));
    m_header->setVisible(page != nullptr);
    m_stack->setCurrentWidget(page != nullptr ? static_cast<QWidget*>(page) : m_list);
    update();
}

void CToolsScreen::StepPage(int by) {
    const auto count = static_cast<int>(m_pages.size());
    if (count == 0) return;
    const int from = m_current ? static_cast<int>(*m_current) : (by > 0 ? -1 : 0);
    ShowPage(static_cast<std::size_t>((from + by + count) % count));
}

void CToolsScreen::Refresh() {
    for (CToolPage* page : m_pages)
        page->Refresh();
}

QList<QAction*> CToolsScreen::Commands() {
    CToolPage* page = Current();
    return page != nullptr ? page->Commands() : QList<QAction*>();
}

bool CToolsScreen::MayLeave() {
    CToolPage* page = Current();
    return page == nullptr || page->MayLeave();
}

bool CToolsScreen::GoBack() {
    return m_current && ShowPage(std::nullopt);
}

void CToolsScreen::Entered() {
    if (CToolPage* page = Current()) {
        page->Entered();
    } else {
        m_list->FocusTool(0);
    }
}

QString CToolsScreen::ViewName(int view) const {
    return view == 0 ? QString() : m_pages[static_cast<std::size_t>(view - 1)]->IconName();
}

void CToolsScreen::ShowView(int view) {
    Open(view == 0 ? std::nullopt : std::optional(static_cast<std::size_t>(view - 1)));
    Entered();
}

void CToolsScreen::paintEvent(QPaintEvent* /*event*/) {
    QPainter painter(this);
    const CToolPage* page = Current();
    m_look.PaintBackground(painter, rect(), page != nullptr ? page->Picture() : LookPicture::kCommon);
}

void CToolsScreen::mousePressEvent(QMouseEvent* event) {
    m_swipeFrom = event->position();
}

void CToolsScreen::mouseReleaseEvent(QMouseEvent* event) {
    const auto from = std::exchange(m_swipeFrom, std::nullopt);
    if (!from || !m_current) return;
    const QPointF way = event->position() - *from;
    if (std::abs(way.x()) >= kSwipe && std::abs(way.x()) >= 2 * std::abs(way.y())) StepPage(way.x() < 0 ? 1 : -1);
}

}  // namespace rlx
