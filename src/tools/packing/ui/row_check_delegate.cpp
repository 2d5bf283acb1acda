#include "tools/packing/ui/row_check_delegate.h"

#include <QKeyEvent>
#include <QMouseEvent>

namespace rlx {

namespace {

constexpr int kRowHeight = 30;

bool TurnsOver(const QEvent& event) {
    if (event.type() == QEvent::MouseButtonRelease)
        return static_cast<const QMouseEvent&>(event).button() == Qt::LeftButton;
    if (event.type() != QEvent::KeyPress) return false;
    const int key = static_cast<const QKeyEvent&>(event).key();
    return key == Qt::Key_Space || key == Qt::Key_Select;
}

}  // namespace

QSize CRowCheckDelegate::sizeHint(const QStyleOptionViewItem& option, const QModelIndex& index) const {
    return QStyledItemDelegate::sizeHint(option, index).expandedTo({0, kRowHeight});
}

bool CRowCheckDelegate::editorEvent(QEvent* event, QAbstractItemModel* model, const QStyleOptionViewItem& /*option*/,
                                    const QModelIndex& index) {
    if (!TurnsOver(*event) || !model->flags(index).testFlag(Qt::ItemIsUserCheckable)) return false;
    const bool checked = index.data(Qt::CheckStateRole).toInt() == Qt::Checked;
    return model->setData(index, checked ? Qt::Unchecked : Qt::Checked, Qt::CheckStateRole);
}

}  // namespace rlx
