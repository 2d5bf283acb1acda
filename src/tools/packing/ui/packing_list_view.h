#pragma once

#include <QListView>
#include <QTimer>
#include <optional>

#include "shell/texts.h"
#include "tools/packing/packing_organizer.h"
#include "tools/packing/ui/packing_item_model.h"

namespace rlx {

/// The items to pack: whole texts, a check box in front, and words where there is nothing to show. A tap ticks an item
/// off. References must outlive it.
class CPackingListView : public QListView {
    Q_OBJECT

public:
    CPackingListView(CPackingOrganizer& organizer, const ITexts& texts, QWidget* parent);

    /// Takes the items from the organizer; the selected one stays selected.
    void Reload();

    /// The place in the current list of the selected item.
    std::optional<std::size_t> SelectedItem() const;
    void SelectItem(std::size_t item);

    /// What stands in the place of items when there are none.
    const QString& EmptyText() const { return m_emptyText; }

signals:
    /// Another item is selected, or one was ticked.
    void ItemsChanged();

    /// Rows that the filter hides have been shown long enough.
    void ReloadWanted();

    /// The user clicked an item twice.
    void EditWanted(std::size_t item);

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    void ConnectAll();
    void TakeDoubleClick(const QModelIndex& index);
    QString TextForNone() const;

    CPackingOrganizer& m_organizer;
    const ITexts& m_texts;
    CPackingItemModel* m_items;
    QTimer m_settle;  ///< runs while rows that the filter hides are still shown
    QString m_emptyText;
};

}  // namespace rlx
