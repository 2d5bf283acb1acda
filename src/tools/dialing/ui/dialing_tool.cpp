#include "tools/dialing/ui/dialing_tool.h"

#include <QEvent>
#include <QHeaderView>
#include <QKeyEvent>
#include <QScrollBar>
#include <algorithm>

#include "shell/text_ids.h"
#include "tools/dialing/text_ids.h"
#include "uikit/page_palette.h"
#include "uikit/qt_text.h"

namespace rlx {

namespace {

constexpr int kMargin = 5;
constexpr int kWidest = 720;
constexpr int kWidthForOneLine = 460;  // selector and field beside each other
constexpr int kLowPage = 190;          // the same where height is scarce
constexpr int kControlHeight = 28;
constexpr int kFieldWidth = 76;
constexpr int kSmallFont = 11;  // pixels
constexpr int kUsualFont = 13;
constexpr int kWidthForUsualFont = 400;
constexpr int kColumnsPercent = 92;

/// The factor that lets the columns fill a list of that width.
int FontFactor(int width) {
    return width * 100 / kColumnsPercent - 3;
}

}  // namespace

CDialingTool::CDialingTool(const ITexts& texts, const CLook& look)
    : m_texts(texts), m_look(look), m_layout(new QGridLayout(this)) {
    setObjectName("dialingPage");
    MakeControls();
    connect(m_selector, &QComboBox::currentIndexChanged, this, &CDialingTool::ShowTable);
    connect(m_selector, &QComboBox::currentTextChanged, m_selector, &QWidget::setToolTip);
    connect(m_field, &QLineEdit::textChanged, this, &CDialingTool::Find);
    Refresh();
    ShowTable(0);
    m_selector->setToolTip(m_selector->currentText());
}

void CDialingTool::MakeControls() {
    m_selector = new QComboBox(this);
    m_selector->setObjectName("dialingTable");
    m_selector->setMinimumHeight(kControlHeight);
    m_selector->setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
    m_selector->setAccessibleName(ToQString(m_texts.Text(kTextToolDialing)));
    m_field = new QLineEdit(ToQString(m_texts.Text(kTextKeyword)), this);
    m_field->setObjectName("dialingFind");
    m_field->setMinimumSize(kFieldWidth, kControlHeight);
    m_field->setAccessibleName(ToQString(m_texts.Text(kTextSearch)));
    m_field->installEventFilter(this);
    for (const DialingTable table : {DialingTable::kInternational, DialingTable::kUs}) {
        m_selector->addItem(ToQString(m_texts.Text(DialingTableName(table))));
        m_lists[static_cast<std::size_t>(table)] = MakeList(table);
    }
}

QTreeView* CDialingTool::MakeList(DialingTable table) {
    auto* list = new QTreeView(this);
    list->setObjectName(table == DialingTable::kUs ? "usCodes" : "internationalCodes");
    list->setAccessibleName(ToQString(m_texts.Text(DialingTableName(table))));
    list->setModel(new CDialingModel(table, m_texts, list));
    list->setRootIsDecorated(false);
    list->setIndentation(0);
    list->setUniformRowHeights(true);
    list->setWordWrap(true);
    list->setAllColumnsShowFocus(true);
    list->setSelectionBehavior(QAbstractItemView::SelectRows);
    list->setSelectionMode(QAbstractItemView::SingleSelection);
    list->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    list->setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOn);
    list->setTextElideMode(Qt::ElideRight);
    list->header()->setStretchLastSection(false);
    list->header()->setMinimumSectionSize(20);
    list->header()->setSectionsMovable(false);
    return list;
}

QTreeView* CDialingTool::Shown() const {
    return m_lists[static_cast<std::size_t>(std::max(0, m_selector->currentIndex()))];
}

void CDialingTool::ShowTable(int /*table*/) {
    for (QTreeView* list : m_lists)
        list->setVisible(list == Shown());
}

void CDialingTool::Find(const QString& text) {
    QTreeView* list = Shown();
    const auto table = static_cast<const CDialingModel*>(list->model())->Table();
    const auto row = FindDialingRow(table, FromQString(text));
    if (row) {
        SelectRow(list, static_cast<int>(*row));
    } else {
        list->clearSelection();
    }
}

void CDialingTool::SelectRow(QTreeView* list, int row) {
    const QModelIndex index = list->model()->index(row, 0);
    if (!index.isValid()) return;
    list->setCurrentIndex(index);
    list->scrollTo(index);
}

/// Something typed before is ready to be replaced.
void CDialingTool::Entered() {
    m_field->setFocus(Qt::OtherFocusReason);
    m_field->selectAll();
}

void CDialingTool::Refresh() {
    const QColor panel = m_look.Colour(SkinKey::kToolsPCD);
    const QColor text = m_look.Colour(SkinKey::kToolsPCTD);
    setPalette(PagePalette(m_look, {panel, text, panel, text}));
}

void CDialingTool::SizeColumns(QTreeView* list) {
    const auto table = static_cast<const CDialingModel*>(list->model())->Table();
    // A list that is not seen has no width of its own yet.
    const int room = Shown()->width() - 2 * list->frameWidth() - list->verticalScrollBar()->sizeHint().width();
    const auto widths = DialingColumnWidths(table, FontFactor(room));
    for (int column = 0; column < static_cast<int>(widths.size()); ++column)
        list->header()->resizeSection(column, std::max(0, widths[static_cast<std::size_t>(column)]));
}

void CDialingTool::Arrange() {
    const bool oneLine = width() >= kWidthForOneLine || height() < kLowPage;
    const int side = std::max(kMargin, (width() - kWidest) / 2);
    m_layout->setContentsMargins(side, kMargin, side, kMargin);
    m_layout->setSpacing(kMargin);
    m_layout->addWidget(m_selector, 0, 0, 1, oneLine ? 1 : 2);
    m_layout->addWidget(m_field, oneLine ? 0 : 1, oneLine ? 1 : 0, 1, oneLine ? 1 : 2);
    const bool narrow = oneLine && width() < kWidthForOneLine;
    m_field->setClearButtonEnabled(!narrow);
    m_field->setMaximumWidth(narrow ? kFieldWidth : QWIDGETSIZE_MAX);
    m_layout->setColumnStretch(0, 1);
    m_layout->setColumnStretch(1, narrow ? 0 : 1);
    for (QTreeView* list : m_lists)
        m_layout->addWidget(list, 2, 0, 1, 2);
    m_layout->setRowStretch(2, 1);
}

void CDialingTool::resizeEvent(QResizeEvent* /*event*/) {
    QFont sized = font();
    sized.setPixelSize(width() >= kWidthForUsualFont ? kUsualFont : kSmallFont);
    setFont(sized);
    Arrange();
    m_layout->activate();
    for (QTreeView* list : m_lists)
        SizeColumns(list);
}

/// A click or the tab key into the field selects its text; up and down move in the list while one types.
bool CDialingTool::eventFilter(QObject* watched, QEvent* event) {
    if (watched != m_field) return CToolPage::eventFilter(watched, event);
    if (event->type() == QEvent::FocusIn) {
        // After the press that gave the focus has set the cursor.
        QMetaObject::invokeMethod(m_field, &QLineEdit::selectAll, Qt::QueuedConnection);
    }
    if (event->type() != QEvent::KeyPress) return false;
    QTreeView* list = Shown();
    const int row = list->selectionModel()->hasSelection() ? list->currentIndex().row() : -1;
    const int page = std::max(1, list->viewport()->height() / std::max(1, list->sizeHintForRow(0)) - 1);
    const int last = list->model()->rowCount() - 1;
    switch (static_cast<QKeyEvent*>(event)->key()) {
        case Qt::Key_Down:
            SelectRow(list, std::min(row + 1, last));
            return true;
        case Qt::Key_Up:
            SelectRow(list, std::max(row - 1, 0));
            return true;
        case Qt::Key_PageDown:
            SelectRow(list, std::min(row + page, last));
            return true;
        case Qt::Key_PageUp:
            SelectRow(list, std::max(row - page, 0));
            return true;
        default:
            return false;
    }
}

}  // namespace rlx
