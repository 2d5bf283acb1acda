#include "tools/packing/ui/add_items_dialog.h"

#include <QKeyEvent>
#include <QLabel>
#include <QPushButton>

#include "shell/control_ids.h"
#include "tools/packing/packing_templates.h"
#include "tools/packing/text_ids.h"
#include "tools/packing/ui/add_from_all_dialog.h"
#include "tools/packing/ui/check_list.h"
#include "uikit/qt_text.h"

namespace rlx {

QStringList NamesOf(const CPackingLists& lists, const std::vector<ListPlace>& places) {
    QStringList names;
    for (const ListPlace place : places)
        names << ToQString(place.list == 0 ? lists.Categories()[place.category].name : lists.List(place).name);
    return names;
}

void OfferTargets(const CPackingLists& lists, const std::vector<ListPlace>& places, QTreeView* view,
                  const std::vector<QWidget*>& labels) {
    FillCheckList(*view, NamesOf(lists, places));
    view->setVisible(!places.empty());
    for (QWidget* label : labels) {
        if (label != nullptr) label->setVisible(!places.empty());
    }
}

void AppendChecked(std::vector<ListPlace>& chosen, const std::vector<ListPlace>& places, const QTreeView& view) {
    for (const std::size_t row : CheckedRows(view))
        chosen.push_back(places[row]);
}

CAddItemsDialog::CAddItemsDialog(CPackingOrganizer& organizer, const CResources& resources, QWidget* parent)
    : CTemplateDialog(resources.Dialog(kDialogAddItem).value_or(DialogTemplate{}), parent),
      m_organizer(organizer),
      m_resources(resources),
      m_field(Control<QPlainTextEdit>(kControlItemText)),
      m_lists(Control<QTreeView>(kControlItemLists)),
      m_categories(Control<QTreeView>(kControlItemCategories)) {
    setObjectName("addItems");
    setWindowTitle(ToQString(resources.Text(kTextNewItem)));
    if (m_field == nullptr || m_lists == nullptr || m_categories == nullptr) return;
    const CPackingLists& lists = organizer.Lists();
    OfferTargets(lists, organizer.OtherLists(), m_lists, {Control<QLabel>(kControlItemListsLabel)});
    OfferTargets(lists, organizer.OtherCategories(), m_categories, {Control<QLabel>(kControlItemCategoriesLabel)});
    const bool hasTargets = !organizer.OtherLists().empty() || !organizer.OtherCategories().empty();
    if (auto* hint = Control<QLabel>(kControlItemHint)) hint->setVisible(hasTargets);
    if (auto* fromAll = Control<QPushButton>(kControlAddFromAll)) {
        const bool canAdd = hasTargets || organizer.Current() != ListPlace{};
        fromAll->setVisible(canAdd && !lists.List({}).items.empty());
        connect(fromAll, &QPushButton::clicked, this, &CAddItemsDialog::AddFromAll);
    }
    m_field->setFocus();
    m_field->installEventFilter(this);
}

void CAddItemsDialog::AddFromAll() {
    CAddFromAllDialog dialog(m_organizer, m_resources, this);
    const bool added = dialog.exec() == Accepted;
    if (added && m_field->toPlainText().trimmed().isEmpty()) CTemplateDialog::accept();
}

void CAddItemsDialog::accept() {
    if (m_field == nullptr || m_lists == nullptr || m_categories == nullptr) return CTemplateDialog::accept();
    std::vector<ListPlace> also;
    AppendChecked(also, m_organizer.OtherLists(), *m_lists);
    AppendChecked(also, m_organizer.OtherCategories(), *m_categories);
    if (Add(PastedItems(FromQString(m_field->toPlainText())), also)) CTemplateDialog::accept();
}

bool CAddItemsDialog::Add(const std::vector<std::u16string>& items, const std::vector<ListPlace>& also) {
    if (items.size() < 2) return m_organizer.AddItem(items.empty() ? std::u16string() : items.front(), also);
    std::vector<ListPlace> targets{m_organizer.Current()};
    targets.insert(targets.end(), also.begin(), also.end());
    if (m_organizer.AddItems(items, targets).refused == 0) return true;
    QStringList refused;
    for (const std::u16string& item : items) {
        if (!IsPackingItem(item)) refused << ToQString(item);
    }
    m_field->setPlainText(refused.join('\n'));
    return false;
}

/// The Enter key adds, as in any field; with Shift it begins another line.
bool CAddItemsDialog::eventFilter(QObject* watched, QEvent* event) {
    if (watched == m_field && event->type() == QEvent::KeyPress) {
        const auto* key = static_cast<QKeyEvent*>(event);
        const bool isEnter = key->key() == Qt::Key_Return || key->key() == Qt::Key_Enter;
        if (isEnter && !key->modifiers().testFlag(Qt::ShiftModifier)) {
            accept();
            return true;
        }
    }
    return CTemplateDialog::eventFilter(watched, event);
}

}  // namespace rlx
