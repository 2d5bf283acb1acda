#pragma once

#include <QPlainTextEdit>
#include <QTreeView>
#include <vector>

#include "shell/resources.h"
#include "tools/packing/packing_organizer.h"
#include "uikit/template_dialog.h"

namespace rlx {

/// The names of lists, or of their categories where they are "All Items".
QStringList NamesOf(const CPackingLists& lists, const std::vector<ListPlace>& places);

/// Shows lists to add to in `view`; without any, view and labels stay away.
void OfferTargets(const CPackingLists& lists, const std::vector<ListPlace>& places, QTreeView* view,
                  const std::vector<QWidget*>& labels);

/// Appends the places whose rows are checked in `view`.
void AppendChecked(std::vector<ListPlace>& chosen, const std::vector<ListPlace>& places, const QTreeView& view);

/// Adds what is typed, one item a line, to the current list and to the lists that are checked. What is refused stays in
/// the field.
class CAddItemsDialog : public CTemplateDialog {
    Q_OBJECT

public:
    CAddItemsDialog(CPackingOrganizer& organizer, const CResources& resources, QWidget* parent);

    void accept() override;

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void AddFromAll();
    bool Add(const std::vector<std::u16string>& items, const std::vector<ListPlace>& also);

    CPackingOrganizer& m_organizer;
    const CResources& m_resources;
    QPlainTextEdit* m_field;
    QTreeView* m_lists;
    QTreeView* m_categories;
};

}  // namespace rlx
