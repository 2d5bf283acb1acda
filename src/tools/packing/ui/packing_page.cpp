#include "tools/packing/ui/packing_page.h"

#include <algorithm>

#include "base/number.h"
#include "shell/command_ids.h"
#include "shell/fill_text.h"
#include "tools/packing/text_ids.h"
#include "uikit/icons.h"
#include "uikit/page_palette.h"
#include "uikit/qt_text.h"

namespace rlx {

namespace {

constexpr int kMargin = 6;
constexpr int kGap = 4;
constexpr int kLowScreen = 220;
constexpr int kWidthForBoth = 260;  // of list and buttons beside it
constexpr int kWidest = 720;        // of the column in a wide window, as that of the dialing codes

}  // namespace

CPackingPage::CPackingPage(IFileSystem& files, const std::filesystem::path& folder, const CResources& resources,
                           IMessageBoxes& boxes, const CLook& look)
    : m_resources(resources),
      m_look(look),
      m_organizer(files, folder, resources, boxes),
      m_prompts(m_organizer, resources, this),
      m_selectors(new CPackingSelectors(m_organizer, resources, this)),
      m_view(new CPackingListView(m_organizer, resources, this)),
      m_status(new CPackingStatus(ToQString(resources.Text(kTextEditItemHint)), this)),
      m_filters(new QActionGroup(this)),
      m_undo(new QAction(ToQString(resources.Text(kTextUndo)), this)),
      m_layout(new QGridLayout(this)) {
    setObjectName("packingPage");
    connect(m_selectors, &CPackingSelectors::Selected, this, &CPackingPage::Show);
    connect(m_view, &CPackingListView::ItemsChanged, this, &CPackingPage::ShowStatus);
    connect(m_view, &CPackingListView::ReloadWanted, this, &CPackingPage::Show);
    connect(m_view, &CPackingListView::EditWanted, this, &CPackingPage::EditItem);
    MakeCommands();
    MakeItemMenu();
    LayOut();
    connect(&m_look, &CLook::Changed, this, &CPackingPage::ApplyLook);
    ApplyLook();
}

void CPackingPage::LayOut() {
    m_layout->setSpacing(kGap);
    m_layout->setRowStretch(1, 1);
    m_layout->setColumnStretch(0, 1);
    m_layout->addWidget(m_selectors, 0, 0, 1, 2);
    m_layout->addWidget(m_view, 1, 0, 1, 2);
    m_layout->addWidget(m_status, 2, 0, 1, 2);
    m_layout->addWidget(m_bar, 3, 0, 1, 2);
}

/// Where height is scarce the buttons stand beside the list.
void CPackingPage::resizeEvent(QResizeEvent* /*event*/) {
    const int side = std::max(kMargin, (width() - kWidest) / 2);
    m_layout->setContentsMargins(side, kMargin, side, kMargin);
    const bool beside = width() >= kWidthForBoth && height() < kLowScreen;
    m_layout->removeWidget(m_bar);
    m_layout->removeWidget(m_view);
    m_layout->addWidget(m_view, 1, 0, 1, beside ? 1 : 2);
    m_bar->SetForm(beside ? Qt::Vertical : Qt::Horizontal);
    if (beside) {
        m_layout->addWidget(m_bar, 1, 1, Qt::AlignTop);
    } else {
        m_layout->addWidget(m_bar, 3, 0, 1, 2);
    }
}

void CPackingPage::MakeCommands() {
    const auto change = [this](int command, auto& object, auto act) {
        m_commands.Add(command, this, [this, &object, act] {
            if ((object.*act)()) Show();
        });
    };
    change(kCommandAddCategory, m_prompts, &CPackingPrompts::AddCategory);
    change(kCommandAddList, m_prompts, &CPackingPrompts::AddList);
    m_commands.Add(kCommandAddItems, this, [this] { AddItems(); })->setShortcut(Qt::Key_Insert);
    change(kCommandDeleteCategory, m_organizer, &CPackingOrganizer::DeleteCategory);
    change(kCommandDeleteList, m_organizer, &CPackingOrganizer::DeleteList);
    change(kCommandDeleteAllItems, m_organizer, &CPackingOrganizer::DeleteAllItems);
    change(kCommandUncheckAll, m_organizer, &CPackingOrganizer::UncheckAll);
    m_commands.Add(kCommandDeleteItem, this, [this] { DeleteSelected(); })->setShortcut(Qt::Key_Delete);
    MakeFilter(kCommandShowAll, PackingFilter::kAll);
    MakeFilter(kCommandShowChecked, PackingFilter::kChecked);
    MakeFilter(kCommandShowUnchecked, PackingFilter::kUnchecked);
    m_undo->setShortcut(QKeySequence::Undo);
    connect(m_undo, &QAction::triggered, this, [this] {
        if (m_organizer.UndoDelete()) Show();
    });
    for (QAction* action : {m_commands.Find(kCommandAddItems), m_commands.Find(kCommandDeleteItem), m_undo}) {
        action->setShortcutContext(Qt::WidgetWithChildrenShortcut);
        addAction(action);
    }
    m_bar = new CPackingBar(m_resources.Menu(kMenuPacking).value_or(MenuTemplate{}), m_commands, m_undo, this);
    connect(m_status, &CPackingStatus::FilterDismissed, m_commands.Find(kCommandShowAll), &QAction::trigger);
}

/// What one does to an item, at the item itself: by a right click or the menu key.
void CPackingPage::MakeItemMenu() {
    auto* edit = new QAction(ToQString(m_resources.Text(kTextEditItem)), this);
    edit->setShortcut(Qt::Key_F2);
    edit->setShortcutContext(Qt::WidgetWithChildrenShortcut);
    connect(edit, &QAction::triggered, this, [this] {
        if (const auto item = m_view->SelectedItem()) EditItem(*item);
    });
    addAction(edit);
    auto* remove = new QAction(ToQString(m_resources.Text(kTextDeleteItem)), this);
    connect(remove, &QAction::triggered, this, &CPackingPage::DeleteSelected);
    const QAction* command = m_commands.Find(kCommandDeleteItem);
    connect(command, &QAction::changed, this, [command, edit, remove] {
        edit->setEnabled(command->isEnabled());
        remove->setEnabled(command->isEnabled());
    });
    m_view->setContextMenuPolicy(Qt::ActionsContextMenu);
    m_view->addActions({edit, remove});
}

void CPackingPage::MakeFilter(int command, PackingFilter filter) {
    QAction* action = m_commands.Add(command, this, [this, filter] {
        m_organizer.SetFilter(filter);
        Show();
    });
    action->setCheckable(true);
    m_filters->addAction(action);
    action->setChecked(filter == PackingFilter::kAll);
}

void CPackingPage::ApplyLook() {
    const QColor text = m_look.PanelText();
    setPalette(
        PagePalette(m_look, {m_look.Colour(SkinKey::kToolsPCP), text, m_look.Colour(SkinKey::kToolsPBCP), text}));
    ShowStatus();
}

void CPackingPage::Entered() {
    if (!m_loaded) m_organizer.Load();
    m_loaded = true;
    Show();
    m_view->setFocus(Qt::OtherFocusReason);
}

bool CPackingPage::MayLeave() {
    const bool leaves = m_organizer.Leave();
    Show();
    return leaves;
}

void CPackingPage::Refresh() {
    Show();
}

void CPackingPage::Show() {
    m_selectors->Show();
    m_view->Reload();
    ShowStatus();
}

void CPackingPage::ShowStatus() {
    const std::vector<PackingItem>& items = m_organizer.CurrentList().items;
    const auto ticked = std::ranges::count(items, true, &PackingItem::ticked);
    const std::u16string packed =
        FillText(m_resources.Text(kTextPackedCount),
                 {FormatInteger(ticked), FormatInteger(static_cast<std::int64_t>(items.size()))});
    const bool filters = m_organizer.Filter() != PackingFilter::kAll;
    m_status->Set(ToQString(packed), filters ? m_filters->checkedAction()->text() : QString());
    m_commands.Find(kCommandDeleteItem)->setEnabled(m_view->SelectedItem().has_value());
    m_bar->SetUndo(m_organizer.CanUndoDelete(), TintedIcon(QStringLiteral("undo"), m_look.PanelText()));
}

void CPackingPage::AddItems() {
    const std::size_t before = m_organizer.CurrentList().items.size();
    m_prompts.AddItems();
    Show();
    if (m_organizer.CurrentList().items.size() > before) m_view->SelectItem(m_organizer.CurrentList().items.size() - 1);
}

void CPackingPage::EditItem(std::size_t item) {
    if (m_prompts.EditItem(item)) Show();
}

void CPackingPage::DeleteSelected() {
    const std::optional<std::size_t> item = m_view->SelectedItem();
    if (!item || !m_organizer.DeleteItem(*item)) return;
    Show();
    const std::size_t count = m_organizer.CurrentList().items.size();
    if (count > 0) m_view->SelectItem(std::min(*item, count - 1));
}

}  // namespace rlx
