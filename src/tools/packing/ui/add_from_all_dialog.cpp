#include "tools/packing/ui/add_from_all_dialog.h"

#include <QLabel>

#include "shell/control_ids.h"
#include "tools/packing/text_ids.h"
#include "tools/packing/ui/add_items_dialog.h"
#include "tools/packing/ui/check_list.h"
#include "uikit/qt_text.h"

namespace rlx {

CAddFromAllDialog::CAddFromAllDialog(CPackingOrganizer& organizer, const CResources& resources, QWidget* parent)
    : CTemplateDialog(resources.Dialog(kDialogAddFromAll).value_or(DialogTemplate{}), parent),
      m_organizer(organizer),
      m_items(Control<QTreeView>(kControlFromItems)),
      m_lists(Control<QTreeView>(kControlToLists)),
      m_categories(Control<QTreeView>(kControlToCategories)) {
    setObjectName("addFromAll");
    setWindowTitle(ToQString(resources.Text(kTextAddRemoveItems)));
    if (m_items == nullptr || m_lists == nullptr || m_categories == nullptr) return;
    QStringList texts;
    for (const PackingItem& item : organizer.Lists().List({}).items)
        texts << ToQString(item.text);
    FillCheckList(*m_items, texts);
    m_items->setFocus();
    OfferTargets(organizer.Lists(), organizer.OtherLists(), m_lists,
                 {Control<QLabel>(kControlToListsLabel), Control<QLabel>(kControlOtherListsLabel)});
    OfferTargets(organizer.Lists(), organizer.OtherCategories(), m_categories,
                 {Control<QLabel>(kControlToCategoriesLabel)});
}

/// Nothing checked adds nothing; an item that a list has already is passed over.
void CAddFromAllDialog::accept() {
    if (m_items == nullptr || m_lists == nullptr || m_categories == nullptr) return CTemplateDialog::accept();
    const std::vector<PackingItem>& all = m_organizer.Lists().List({}).items;
    std::vector<std::u16string> items;
    for (const std::size_t row : CheckedRows(*m_items))
        items.push_back(all[row].text);
    std::vector<ListPlace> targets{m_organizer.Current()};
    AppendChecked(targets, m_organizer.OtherLists(), *m_lists);
    AppendChecked(targets, m_organizer.OtherCategories(), *m_categories);
    m_organizer.AddItems(items, targets);
    CTemplateDialog::accept();
}

}  // namespace rlx
