#pragma once

#include <QTreeView>

#include "shell/resources.h"
#include "tools/packing/packing_organizer.h"
#include "uikit/template_dialog.h"

namespace rlx {

/// Adds items that "All Items" of "All" has already to the current list and to the lists that are checked.
class CAddFromAllDialog : public CTemplateDialog {
    Q_OBJECT

public:
    CAddFromAllDialog(CPackingOrganizer& organizer, const CResources& resources, QWidget* parent);

    void accept() override;

private:
    CPackingOrganizer& m_organizer;
    QTreeView* m_items;
    QTreeView* m_lists;
    QTreeView* m_categories;
};

}  // namespace rlx
