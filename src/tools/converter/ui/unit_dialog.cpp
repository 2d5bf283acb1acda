#include "tools/converter/ui/unit_dialog.h"

#include <QHeaderView>
#include <QPushButton>
#include <QShortcut>
#include <algorithm>

#include "shell/control_ids.h"
#include "tools/converter/text_ids.h"
#include "uikit/qt_text.h"

namespace rlx {

CUnitDialog::CUnitDialog(CUnitDatabase& database, const CResources& resources, IMessageBoxes& boxes,
                         std::size_t category, QWidget* parent)
    : CTemplateDialog(resources.Dialog(kDialogEditUnits).value_or(DialogTemplate{}), parent),
      m_database(database),
      m_resources(resources),
      m_editor(database, resources, boxes),
      m_category(Control<QComboBox>(kControlUnitCategory)),
      m_list(Control<QTreeView>(kControlUnitList)),
      m_name(Control<QLineEdit>(kControlUnitName)),
      m_value(Control<QLineEdit>(kControlUnitValue)),
      m_delete(Control<QPushButton>(kControlUnitDelete)) {
    setObjectName("editUnits");
    resize(420, 480);
    auto* add = Control<QPushButton>(kControlUnitAdd);
    // A language module may bring a dialog that lacks a control.
    if (!m_category || !m_list || !m_name || !m_value || !m_delete || !add) return;
    SetUp(category);
    // The return key in a field adds the unit rather than closing the dialog.
    add->setDefault(true);
    connect(add, &QPushButton::clicked, this, &CUnitDialog::Add);
    connect(m_delete, &QPushButton::clicked, this, &CUnitDialog::Delete);
    auto* key = new QShortcut(QKeySequence::Delete, m_list);
    key->setContext(Qt::WidgetShortcut);
    connect(key, &QShortcut::activated, this, &CUnitDialog::Delete);
    ShowUnits();
}

void CUnitDialog::SetUp(std::size_t category) {
    for (const std::size_t each : kEditableCategories)
        m_category->addItem(ToQString(CategoryName(each, m_resources)));
    const auto at = std::ranges::find(kEditableCategories, category);
    m_category->setCurrentIndex(at == kEditableCategories.end() ? 0
                                                                : static_cast<int>(at - kEditableCategories.begin()));
    m_list->setModel(&m_model);
    m_list->setSelectionMode(QAbstractItemView::SingleSelection);
    m_list->setEditTriggers(QAbstractItemView::NoEditTriggers);
    m_list->setTextElideMode(Qt::ElideRight);
    m_list->header()->setStretchLastSection(false);
    connect(m_category, &QComboBox::currentIndexChanged, this, &CUnitDialog::ShowUnits);
    connect(m_list->selectionModel(), &QItemSelectionModel::selectionChanged, this,
            [this] { m_delete->setEnabled(m_list->selectionModel()->hasSelection()); });
}

std::size_t CUnitDialog::Category() const {
    return kEditableCategories.at(static_cast<std::size_t>(std::max(0, m_category->currentIndex())));
}

void CUnitDialog::ShowUnits() {
    m_model.removeRows(0, m_model.rowCount());
    const std::u16string valueTitle = m_resources.Text(kTextUnitValue).append(ValueSuffix(Category()));
    m_model.setHorizontalHeaderLabels({ToQString(m_resources.Text(kTextUnitName)), ToQString(valueTitle)});
    const UnitTables tables = m_database.ReadTables();
    for (const Unit& unit : tables[Category()]) {
        QList<QStandardItem*> row;
        for (const std::u16string* text : {&unit.name, &unit.factor}) {
            row << new QStandardItem(ToQString(*text));
            row.back()->setToolTip(row.back()->text());
        }
        m_model.appendRow(row);
    }
    m_list->header()->setSectionResizeMode(QHeaderView::Stretch);
    m_delete->setEnabled(false);
}

void CUnitDialog::SelectRow(int row) {
    if (row < 0) return;
    m_list->setCurrentIndex(m_model.index(row, 0));
    m_list->scrollTo(m_model.index(row, 0));
}

/// Units are added behind the others of their category.
void CUnitDialog::Add() {
    if (!m_editor.Add(Category(), FromQString(m_name->text()), FromQString(m_value->text()))) {
        m_name->setFocus();
        m_name->selectAll();
        return;
    }
    m_name->clear();
    m_value->clear();
    m_name->setFocus();
    ShowUnits();
    SelectRow(m_model.rowCount() - 1);
    emit UnitsChanged();
}

void CUnitDialog::Delete() {
    const QModelIndex selected = m_list->currentIndex();
    if (!selected.isValid() || !m_list->selectionModel()->hasSelection()) return;
    const QString name = m_model.item(selected.row(), 0)->text();
    if (!m_editor.Delete(Category(), FromQString(name))) return;
    const int row = selected.row();
    ShowUnits();
    SelectRow(std::min(row, m_model.rowCount() - 1));
    emit UnitsChanged();
}

}  // namespace rlx
