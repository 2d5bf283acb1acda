#pragma once

#include <QStyledItemDelegate>

namespace rlx {

/// Paints a list's row of several lines, the first one bold. Lines that are too long end in an ellipsis.
class CReminderRow : public QStyledItemDelegate {
    Q_OBJECT

public:
    using QStyledItemDelegate::QStyledItemDelegate;

    void paint(QPainter* painter, const QStyleOptionViewItem& option, const QModelIndex& index) const override;
    QSize sizeHint(const QStyleOptionViewItem& option, const QModelIndex& index) const override;
};

}  // namespace rlx
