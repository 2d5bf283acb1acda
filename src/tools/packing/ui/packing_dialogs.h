#pragma once

#include <QComboBox>
#include <QLineEdit>
#include <functional>
#include <string>
#include <vector>

#include "shell/resources.h"
#include "tools/packing/packing_templates.h"
#include "uikit/template_dialog.h"

namespace rlx {

/// Asks for one line of text, until it is taken or the dialog is given up.
class CPackingTextDialog : public CTemplateDialog {
    Q_OBJECT

public:
    /// Takes the text; false, after telling why, keeps the dialog open with what was typed.
    using Take = std::function<bool(const std::u16string& text)>;

    /// `titleText` numbers the title; `text` stands in the field at first.
    CPackingTextDialog(const CResources& resources, int titleText, const QString& text, int maxLength, Take take,
                       QWidget* parent);

    void accept() override;

private:
    QLineEdit* m_field;
    Take m_take;
};

/// Asks for the name of a new category and for what it starts with.
class CNewCategoryDialog : public CTemplateDialog {
    Q_OBJECT

public:
    using Take = std::function<bool(const std::u16string& name, const std::vector<std::u16string>& items)>;

    CNewCategoryDialog(const CResources& resources, Take take, QWidget* parent);

    void accept() override;

private:
    void ChooseTemplate(int index);

    QLineEdit* m_field;
    QComboBox* m_choice;
    std::vector<PackingTemplate> m_templates;
    Take m_take;
};

}  // namespace rlx
