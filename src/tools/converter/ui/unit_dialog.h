#pragma once

#include <QComboBox>
#include <QLineEdit>
#include <QPushButton>
#include <QStandardItemModel>
#include <QTreeView>

#include "shell/resources.h"
#include "tools/converter/unit_editor.h"
#include "uikit/template_dialog.h"

namespace rlx {

/// The "Edit units" dialog: the units of one category, with fields to add one and a button to delete the selected one.
/// Every change is in the database at once.
class CUnitDialog : public CTemplateDialog {
    Q_OBJECT

public:
    /// Opens with `category`, or with the first one when that cannot be edited. All references must outlive the dialog.
    CUnitDialog(CUnitDatabase& database, const CResources& resources, IMessageBoxes& boxes, std::size_t category,
                QWidget* parent);

signals:
    void UnitsChanged();

private:
    void SetUp(std::size_t category);
    std::size_t Category() const;
    void ShowUnits();
    void SelectRow(int row);
    void Add();
    void Delete();

    CUnitDatabase& m_database;
    const CResources& m_resources;
    CUnitEditor m_editor;
    QStandardItemModel m_model;
    QComboBox* m_category;
    QTreeView* m_list;
    QLineEdit* m_name;
    QLineEdit* m_value;
    QPushButton* m_delete;
};

}  // namespace rlx
