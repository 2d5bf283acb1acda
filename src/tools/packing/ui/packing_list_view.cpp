#include "tools/packing/ui/packing_list_view.h"

#include <QApplication>
#include <QPainter>
#include <QScroller>

#include "tools/packing/text_ids.h"
#include "tools/packing/ui/row_check_delegate.h"
#include "uikit/qt_text.h"

namespace rlx {

CPackingListView::CPackingListView(CPackingOrganizer& organizer, const ITexts& texts, QWidget* parent)
    : QListView(parent), m_organizer(organizer), m_texts(texts), m_items(new CPackingItemModel(organizer, this)) {
    setObjectName("items");
    setAccessibleName(ToQString(texts.Text(kTextToolPacking)));
    setItemDelegate(new CRowCheckDelegate(this));
    setEditTriggers(NoEditTriggers);
    setSelectionMode(SingleSelection);
    setWordWrap(true);
    setResizeMode(Adjust);
    setVerticalScrollMode(ScrollPerPixel);
    setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    QScroller::grabGesture(viewport(), QScroller::TouchGesture);
    setModel(m_items);
    m_settle.setSingleShot(true);
    m_settle.setInterval(QApplication::doubleClickInterval());
    ConnectAll();
}

void CPackingListView::ConnectAll() {
    connect(this, &QListView::doubleClicked, this, &CPackingListView::TakeDoubleClick);
    connect(selectionModel(), &QItemSelectionModel::currentChanged, this, &CPackingListView::ItemsChanged);
    connect(&m_settle, &QTimer::timeout, this, &CPackingListView::ReloadWanted);
    connect(m_items, &QAbstractItemModel::dataChanged, this, [this] {
        emit ItemsChanged();
        if (m_organizer.Filter() != PackingFilter::kAll) m_settle.start();
    });
}

void CPackingListView::Reload() {
    m_settle.stop();
    const std::optional<std::size_t> selected = SelectedItem();
    m_items->Reload();
    m_emptyText = TextForNone();
    viewport()->update();
    if (m_items->rowCount() == 0) return;
    const QModelIndex before = selected ? m_items->IndexOf(*selected) : QModelIndex();
    setCurrentIndex(before.isValid() ? before : m_items->index(0));
}

QString CPackingListView::TextForNone() const {
    if (m_organizer.CurrentList().items.empty()) return ToQString(m_texts.Text(kTextNoItemsYet));
    const bool checked = m_organizer.Filter() == PackingFilter::kChecked;
    return ToQString(m_texts.Text(checked ? kTextNoneChecked : kTextAllChecked));
}

std::optional<std::size_t> CPackingListView::SelectedItem() const {
    const QModelIndex index = currentIndex();
    if (!index.isValid()) return std::nullopt;
    return m_items->ItemAt(index);
}

void CPackingListView::SelectItem(std::size_t item) {
    const QModelIndex index = m_items->IndexOf(item);
    setCurrentIndex(index);
    if (index.isValid()) scrollTo(index);
}

/// The first of two clicks has turned the tick over, which nobody meant.
void CPackingListView::TakeDoubleClick(const QModelIndex& index) {
    const bool ticked = index.data(Qt::CheckStateRole).toInt() == Qt::Checked;
    m_items->setData(index, ticked ? Qt::Unchecked : Qt::Checked, Qt::CheckStateRole);
    emit EditWanted(m_items->ItemAt(index));
}

void CPackingListView::paintEvent(QPaintEvent* event) {
    QListView::paintEvent(event);
    if (m_items->rowCount() > 0) return;
    constexpr int kMargin = 8;
    QPainter painter(viewport());
    painter.setPen(palette().color(QPalette::Text));
    painter.drawText(viewport()->rect().adjusted(kMargin, kMargin, -kMargin, -kMargin),
                     Qt::AlignCenter | Qt::TextWordWrap, m_emptyText);
}

}  // namespace rlx
