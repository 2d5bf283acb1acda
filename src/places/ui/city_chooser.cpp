#include "places/ui/city_chooser.h"

#include <QHeaderView>
#include <QKeyEvent>
#include <QPushButton>
#include <QVBoxLayout>

#include "places/text_ids.h"
#include "places/ui/city_row_delegate.h"
#include "shell/control_ids.h"
#include "shell/text_ids.h"
#include "uikit/qt_text.h"

namespace rlx {

CCityChooser::CCityChooser(CCityDatabase& cities, CCityTimes& times, const CResources& resources, ClockForm form,
                           const QString& title, CityIndex current, QWidget* parent)
    : CCityChooser(kDialogChooseCity, cities, times, resources, form, current, parent) {
    setWindowTitle(title);
}

CCityChooser::CCityChooser(int dialog, CCityDatabase& cities, CCityTimes& times, const CResources& resources,
                           ClockForm form, CityIndex current, QWidget* parent)
    : CTemplateDialog(resources.Dialog(dialog).value_or(DialogTemplate{}), parent),
      m_search(cities),
      m_model(cities, times, resources, form),
      m_field(Control<QLineEdit>(kControlCitySearch)),
      m_list(Control<QTreeView>(kControlCityList)),
      m_nothing(new QLabel(ToQString(resources.Text(kTextNothingFound)), m_list)),
      m_current(current) {
    setObjectName("cityChooser");
    resize(420, 520);
    if (m_field == nullptr || m_list == nullptr) return;
    SetUpList();
    m_field->setPlaceholderText(ToQString(resources.Text(kTextCitySearchHint)));
    m_field->installEventFilter(this);
    m_field->setFocus();
    connect(m_field, &QLineEdit::textChanged, this, &CCityChooser::Search);
    connect(m_list, &QTreeView::doubleClicked, this, [this] { Activated(); });
    Search();
}

void CCityChooser::SetUpList() {
    m_list->setModel(&m_model);
    m_list->setItemDelegate(new CCityRowDelegate(m_list));
    m_list->setHeaderHidden(true);
    m_list->setIndentation(8);
    m_list->setSelectionMode(QAbstractItemView::SingleSelection);
    m_list->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    m_list->setTextElideMode(Qt::ElideRight);
    QHeaderView* header = m_list->header();
    header->setStretchLastSection(false);
    header->setSectionResizeMode(CCityListModel::kPlace, QHeaderView::Stretch);
    header->setSectionResizeMode(CCityListModel::kTime, QHeaderView::ResizeToContents);
    auto* layout = new QVBoxLayout(m_list);
    m_nothing->setAlignment(Qt::AlignCenter);
    m_nothing->setObjectName("nothingFound");
    layout->addWidget(m_nothing);
}

/// An empty field shows every city with the current one selected, any text the best match first.
void CCityChooser::Search() {
    const std::u16string text = FromQString(m_field->text());
    m_model.SetCities(m_search.Find(text));
    m_nothing->setVisible(m_model.rowCount() == 0);
    const bool all = m_field->text().trimmed().isEmpty();
    Select(all ? m_model.RowOf(m_current).value_or(0) : 0);
    ListChanged();
}

void CCityChooser::ListChanged() {
    if (auto* ok = Control<QPushButton>(kControlOk)) ok->setEnabled(m_model.rowCount() > 0);
}

void CCityChooser::Reload(std::optional<CityIndex> current) {
    if (m_field == nullptr || m_list == nullptr) return;
    m_search.Forget();
    m_current = current.value_or(Selected().value_or(0));
    Search();
    if (const auto row = current ? m_model.RowOf(*current) : std::nullopt) Select(*row);
}

void CCityChooser::Select(int row) {
    if (row < 0 || row >= m_model.rowCount()) return;
    const QModelIndex index = m_model.index(row, 0);
    m_list->setCurrentIndex(index);
    m_list->scrollTo(index, QAbstractItemView::EnsureVisible);
}

std::optional<CityIndex> CCityChooser::Selected() const {
    return m_list == nullptr ? std::nullopt : m_model.CityAt(m_list->currentIndex());
}

/// Up and down move in the list while one types.
bool CCityChooser::eventFilter(QObject* watched, QEvent* event) {
    if (watched == m_field && event->type() == QEvent::KeyPress) {
        const int key = static_cast<QKeyEvent*>(event)->key();
        const int row = m_list->currentIndex().row();
        const int page = qMax(1, m_list->viewport()->height() / qMax(1, m_list->sizeHintForRow(0)) - 1);
        switch (key) {
            case Qt::Key_Down:
                Select(qMin(row + 1, m_model.rowCount() - 1));
                return true;
            case Qt::Key_Up:
                Select(qMax(row - 1, 0));
                return true;
            case Qt::Key_PageDown:
                Select(qMin(row + page, m_model.rowCount() - 1));
                return true;
            case Qt::Key_PageUp:
                Select(qMax(row - page, 0));
                return true;
            default:
                break;
        }
    }
    return CTemplateDialog::eventFilter(watched, event);
}

}  // namespace rlx
