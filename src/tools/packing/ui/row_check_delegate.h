#pragma once

#include <QStyledItemDelegate>

namespace rlx {

/// Rows high enough for a finger, with a check box that a tap anywhere on the row, or Space, turns over.
class CRowCheckDelegate : public QStyledItemDelegate {
    Q_OBJECT

public:
    using QStyledItemDelegate::QStyledItemDelegate;

    QSize sizeHint(const QStyleOptionViewItem& option, const QModelIndex& index) const override;
    bool editorEvent(QEvent* event, QAbstractItemModel* model, const QStyleOptionViewItem& option,
                     const QModelIndex& index) override;
};

}  // namespace rlx
