#include "tools/packing/ui/check_list.h"

#include <QStandardItemModel>

#include "tools/packing/ui/row_check_delegate.h"

namespace rlx {

void FillCheckList(QTreeView& view, const QStringList& texts) {
    auto* model = new QStandardItemModel(&view);
    for (const QString& text : texts) {
        auto* item = new QStandardItem(text);
        item->setEditable(false);
        item->setCheckable(true);
        item->setToolTip(text);
        model->appendRow(item);
    }
    view.setModel(model);
    view.setItemDelegate(new CRowCheckDelegate(&view));
    view.setHeaderHidden(true);
    view.setEditTriggers(QAbstractItemView::NoEditTriggers);
    view.setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    if (!texts.isEmpty()) view.setCurrentIndex(model->index(0, 0));
}

std::vector<std::size_t> CheckedRows(const QTreeView& view) {
    std::vector<std::size_t> rows;
    const QAbstractItemModel* model = view.model();
    for (int row = 0; row < model->rowCount(); ++row) {
        if (model->index(row, 0).data(Qt::CheckStateRole).toInt() == Qt::Checked)
            rows.push_back(static_cast<std::size_t>(row));
    }
    return rows;
}

}  // namespace rlx
