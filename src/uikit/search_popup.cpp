#include "uikit/search_popup.h"

#include <QKeyEvent>
#include <QScrollBar>
#include <QVBoxLayout>
#include <algorithm>

#include "uikit/qt_text.h"

namespace rlx {

namespace {

constexpr int kMargin = 4;
constexpr int kRowHeight = 28;
constexpr int kMostRows = 16;
constexpr int kTextMargins = 16;

}  // namespace

CSearchPopup::CSearchPopup(QStringList entries, EntrySearch search, const Words& words, QWidget* owner)
    : QFrame(owner, Qt::Popup),
      m_entries(std::move(entries)),
      m_search(std::move(search)),
      m_field(new QLineEdit(this)),
      m_list(new QListWidget(this)),
      m_nothing(new QLabel(words.nothingFound, m_list)) {
    setObjectName("searchPopup");
    setAttribute(Qt::WA_DeleteOnClose);
    setFrameShape(QFrame::StyledPanel);
    setPalette(owner->palette());
    setFont(owner->font());
    m_field->setObjectName("searchField");
    m_field->setPlaceholderText(words.searchHint);
    m_field->setAccessibleName(words.searchHint);
    m_field->setClearButtonEnabled(true);
    m_field->setMinimumHeight(kRowHeight);
    m_field->installEventFilter(this);
    LayOut();
    connect(m_field, &QLineEdit::textChanged, this, &CSearchPopup::Search);
    connect(m_list, &QListWidget::itemClicked, this, &CSearchPopup::Accept);
}

void CSearchPopup::LayOut() {
    m_list->setObjectName("searchList");
    m_list->setFocusPolicy(Qt::NoFocus);
    m_list->setUniformItemSizes(true);
    m_list->setTextElideMode(Qt::ElideRight);
    m_list->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    m_list->setFrameShape(QFrame::NoFrame);
    QPalette onList = palette();
    onList.setColor(QPalette::WindowText, palette().color(QPalette::Text));
    m_nothing->setPalette(onList);
    m_nothing->setObjectName("nothingFound");
    m_nothing->setAlignment(Qt::AlignCenter);
    (new QVBoxLayout(m_list))->addWidget(m_nothing);
    auto* column = new QVBoxLayout(this);
    column->setContentsMargins(2, 2, 2, 2);
    column->setSpacing(2);
    column->addWidget(m_field);
    column->addWidget(m_list, 1);
}

void CSearchPopup::Open(int current, const QString& typed) {
    m_current = current;
    m_field->setText(typed);
    Search();
    Place();
    show();
    m_field->setFocus(Qt::PopupFocusReason);
    m_list->scrollToItem(m_list->currentItem(), QAbstractItemView::PositionAtCenter);
}

/// An empty field keeps the entry chosen so far selected, any text the best match.
void CSearchPopup::Search() {
    m_list->clear();
    int row = 0;
    for (const std::size_t place : m_search(FromQString(m_field->text()))) {
        const auto entry = static_cast<int>(place);
        auto* item = new QListWidgetItem(m_entries[entry], m_list);
        item->setData(Qt::UserRole, entry);
        item->setToolTip(m_entries[entry]);
        item->setSizeHint({0, kRowHeight});
        if (entry == m_current && m_field->text().isEmpty()) row = m_list->count() - 1;
    }
    m_list->setCurrentRow(row);
    m_nothing->setVisible(m_list->count() == 0);
}

void CSearchPopup::Accept(const QListWidgetItem* item) {
    if (item == nullptr) return;
    const int entry = item->data(Qt::UserRole).toInt();
    close();
    emit Chosen(entry);
}

void CSearchPopup::Move(int by) {
    if (m_list->count() > 0) m_list->setCurrentRow(std::clamp(m_list->currentRow() + by, 0, m_list->count() - 1));
}

/// Within the window, so that it is seen whole wherever the window stands.
void CSearchPopup::Place() {
    const QWidget* owner = parentWidget();
    const QRect room = QRect(owner->window()->mapToGlobal(QPoint(0, 0)), owner->window()->size())
                           .adjusted(kMargin, kMargin, -kMargin, -kMargin);
    int longest = 0;
    for (const QString& entry : m_entries)
        longest = std::max(longest, fontMetrics().horizontalAdvance(entry));
    const int wanted = longest + kTextMargins + m_list->verticalScrollBar()->sizeHint().width();
    const int rows = std::min(kMostRows, static_cast<int>(m_entries.size()));
    const QSize size(std::min(std::max(wanted, owner->width()), room.width()),
                     std::min((rows + 1) * kRowHeight + 2 * kMargin, room.height()));
    const QPoint below = owner->mapToGlobal(QPoint(0, owner->height()));
    const int left = std::clamp(below.x(), room.left(), std::max(room.left(), room.right() + 1 - size.width()));
    const int top = std::clamp(below.y(), room.top(), std::max(room.top(), room.bottom() + 1 - size.height()));
    setGeometry(QRect(QPoint(left, top), size));
}

/// Up and down move in the list while one types.
bool CSearchPopup::eventFilter(QObject* watched, QEvent* event) {
    if (watched != m_field || event->type() != QEvent::KeyPress) return QFrame::eventFilter(watched, event);
    const int page = std::max(1, m_list->viewport()->height() / kRowHeight - 1);
    switch (static_cast<QKeyEvent*>(event)->key()) {
        case Qt::Key_Down:
            Move(1);
            return true;
        case Qt::Key_Up:
            Move(-1);
            return true;
        case Qt::Key_PageDown:
            Move(page);
            return true;
        case Qt::Key_PageUp:
            Move(-page);
            return true;
        case Qt::Key_Return:
        case Qt::Key_Enter:
            Accept(m_list->currentItem());
            return true;
        case Qt::Key_Escape:
            close();
            return true;
        default:
            return QFrame::eventFilter(watched, event);
    }
}

}  // namespace rlx
