#include "tools/packing/ui/packing_item_model.h"

#include <algorithm>

#include "uikit/qt_text.h"

namespace rlx {

CPackingItemModel::CPackingItemModel(CPackingOrganizer& organizer, QObject* parent)
    : QAbstractListModel(parent), m_organizer(organizer) {}

void CPackingItemModel::Reload() {
    beginResetModel();
    m_items = m_organizer.VisibleItems();
    endResetModel();
}

QModelIndex CPackingItemModel::IndexOf(std::size_t item) const {
    const auto at = std::ranges::find(m_items, item);
    return at == m_items.end() ? QModelIndex() : index(static_cast<int>(at - m_items.begin()));
}

int CPackingItemModel::rowCount(const QModelIndex& parent) const {
    return parent.isValid() ? 0 : static_cast<int>(m_items.size());
}

QVariant CPackingItemModel::data(const QModelIndex& index, int role) const {
    if (!checkIndex(index, CheckIndexOption::IndexIsValid)) return {};
    const std::vector<PackingItem>& items = m_organizer.CurrentList().items;
    if (ItemAt(index) >= items.size()) return {};  // asked for between a change and the reload
    const PackingItem& item = items[ItemAt(index)];
    if (role == Qt::DisplayRole || role == Qt::ToolTipRole) return ToQString(item.text);
    if (role == Qt::CheckStateRole) return item.ticked ? Qt::Checked : Qt::Unchecked;
    return {};
}

bool CPackingItemModel::setData(const QModelIndex& index, const QVariant& value, int role) {
    if (role != Qt::CheckStateRole || !checkIndex(index, CheckIndexOption::IndexIsValid)) return false;
    if (!m_organizer.SetTicked(ItemAt(index), value.toInt() == Qt::Checked)) return false;
    emit dataChanged(index, index, {role});
    return true;
}

Qt::ItemFlags CPackingItemModel::flags(const QModelIndex& /*index*/) const {
    return Qt::ItemIsEnabled | Qt::ItemIsSelectable | Qt::ItemIsUserCheckable | Qt::ItemNeverHasChildren;
}

}  // namespace rlx
