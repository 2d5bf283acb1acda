#pragma once

#include <QAbstractListModel>
#include <vector>

#include "tools/packing/packing_organizer.h"

namespace rlx {

/// The items of the current list that the filter shows. An item that is ticked keeps its row until `Reload`, so that a
/// row never goes away below a finger.
class CPackingItemModel : public QAbstractListModel {
    Q_OBJECT

public:
    explicit CPackingItemModel(CPackingOrganizer& organizer, QObject* parent = nullptr);

    /// Takes the rows from the organizer.
    void Reload();

    /// The place in the current list of the item of a row.
    std::size_t ItemAt(const QModelIndex& index) const { return m_items[static_cast<std::size_t>(index.row())]; }

    /// The row of an item of the current list; invalid when it has none.
    QModelIndex IndexOf(std::size_t item) const;

    int rowCount(const QModelIndex& parent = {}) const override;
    QVariant data(const QModelIndex& index, int role) const override;
    bool setData(const QModelIndex& index, const QVariant& value, int role) override;
    Qt::ItemFlags flags(const QModelIndex& index) const override;

private:
    CPackingOrganizer& m_organizer;
    std::vector<std::size_t> m_items;
};

}  // namespace rlx
