#include "tools/packing/ui/packing_list_view.h"

#include <QPainter>

#include "tools/packing/ui/row_check_delegate.h"

namespace rlx {

CPackingListView::CPackingListView(QWidget* parent) : QListView(parent) {
    setItemDelegate(new CRowCheckDelegate(this));
    setEditTriggers(NoEditTriggers);
    setSelectionMode(SingleSelection);
    setWordWrap(true);
    setResizeMode(Adjust);
    setVerticalScrollMode(ScrollPerPixel);
    setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
}

void CPackingListView::SetEmptyText(const QString& text) {
    m_emptyText = text;
    viewport()->update();
}

void CPackingListView::paintEvent(QPaintEvent* event) {
    QListView::paintEvent(event);
    if (model() == nullptr || model()->rowCount() > 0) return;
    constexpr int kMargin = 8;
    QPainter painter(viewport());
    painter.setPen(palette().color(QPalette::Text));
    painter.drawText(viewport()->rect().adjusted(kMargin, kMargin, -kMargin, -kMargin),
                     Qt::AlignCenter | Qt::TextWordWrap, m_emptyText);
}

}  // namespace rlx
