#include "tools/packing/ui/packing_dialogs.h"

#include "base/text.h"
#include "shell/control_ids.h"
#include "tools/packing/packing_lists.h"
#include "tools/packing/text_ids.h"
#include "uikit/qt_text.h"

namespace rlx {

CPackingTextDialog::CPackingTextDialog(const CResources& resources, int titleText, const QString& text, int maxLength,
                                       Take take, QWidget* parent)
    : CTemplateDialog(resources.Dialog(kDialogName).value_or(DialogTemplate{}), parent),
      m_field(Control<QLineEdit>(kControlName)),
      m_take(std::move(take)) {
    setObjectName("packingText");
    setWindowTitle(ToQString(resources.Text(titleText)));
    if (m_field == nullptr) return;
    m_field->setMaxLength(maxLength);
    m_field->setText(text);
    m_field->selectAll();
    m_field->setFocus();
}

void CPackingTextDialog::accept() {
    if (m_field == nullptr || m_take(std::u16string(Trim(FromQString(m_field->text()))))) CTemplateDialog::accept();
}

CNewCategoryDialog::CNewCategoryDialog(const CResources& resources, Take take, QWidget* parent)
    : CTemplateDialog(resources.Dialog(kDialogNewCategory).value_or(DialogTemplate{}), parent),
      m_field(Control<QLineEdit>(kControlName)),
      m_choice(Control<QComboBox>(kControlTemplate)),
      m_templates(PackingTemplates(resources)),
      m_take(std::move(take)) {
    setObjectName("newCategory");
    setWindowTitle(ToQString(resources.Text(kTextNewCategory)));
    if (m_field == nullptr || m_choice == nullptr) return;
    m_field->setMaxLength(static_cast<int>(kMaxNameLength));
    m_field->setFocus();
    m_choice->addItem(ToQString(resources.Text(kTextEmptyTemplate)));
    for (const PackingTemplate& one : m_templates)
        m_choice->addItem(ToQString(one.name));
    connect(m_choice, &QComboBox::activated, this, &CNewCategoryDialog::ChooseTemplate);
}

/// A name that nobody has typed follows the choice.
void CNewCategoryDialog::ChooseTemplate(int index) {
    if (m_field->isModified() && !m_field->text().trimmed().isEmpty()) return;
    m_field->setText(index == 0 ? QString() : m_choice->itemText(index));
}

void CNewCategoryDialog::accept() {
    if (m_field == nullptr || m_choice == nullptr) return CTemplateDialog::accept();
    const int chosen = m_choice->currentIndex();
    const std::vector<std::u16string> items =
        chosen > 0 ? m_templates[static_cast<std::size_t>(chosen - 1)].items : std::vector<std::u16string>();
    if (m_take(std::u16string(Trim(FromQString(m_field->text()))), items)) CTemplateDialog::accept();
}

}  // namespace rlx
