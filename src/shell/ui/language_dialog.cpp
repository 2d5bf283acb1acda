#include "shell/ui/language_dialog.h"

#include <QComboBox>
#include <algorithm>

#include "base/text.h"
#include "shell/control_ids.h"
#include "uikit/qt_text.h"

namespace rlx {

CLanguageDialog::CLanguageDialog(const CResources& resources, const std::vector<Language>& languages,
                                 std::uint32_t current, Choose choose, QWidget* parent)
    : CTemplateDialog(resources.Dialog(kDialogLanguage).value_or(DialogTemplate{}), parent),
      m_choose(std::move(choose)) {
    setObjectName("languageDialog");
    auto* list = Control<QComboBox>(kControlLanguageList);
    if (list == nullptr) return;
    for (const Language& language : languages)
        list->addItem(ToQString(language.name), QVariant(language.index));
    list->setCurrentIndex(std::max(0, list->findData(QVariant(current))));
    list->setFocus();
}

void CLanguageDialog::accept() {
    const auto* list = Control<QComboBox>(kControlLanguageList);
    if (list == nullptr || list->currentIndex() < 0) return;
    if (m_choose(list->currentData().toUInt())) CTemplateDialog::accept();
}

std::uint32_t LanguageOfLocale(const std::vector<Language>& languages, const QLocale& locale) {
    const std::u16string name = FromQString(QLocale::languageToString(locale.language()));
    const auto found = std::find_if(languages.begin(), languages.end(),
                                    [&](const Language& language) { return EqualIgnoringCase(language.name, name); });
    return found == languages.end() ? 0 : found->index;
}

}  // namespace rlx
