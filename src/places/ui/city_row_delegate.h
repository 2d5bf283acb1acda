#pragma once

#include <QStyledItemDelegate>

namespace rlx {

/// Paints a row of two lines, the second one smaller and paler. The lines of a cell's text are separated by a line
/// feed.
class CCityRowDelegate : public QStyledItemDelegate {
    Q_OBJECT

public:
    using QStyledItemDelegate::QStyledItemDelegate;

    void paint(QPainter* painter, const QStyleOptionViewItem& option, const QModelIndex& index) const override;
    QSize sizeHint(const QStyleOptionViewItem& option, const QModelIndex& index) const override;
};

}  // namespace rlx
