#pragma once

#include <QLocale>
#include <QString>
#include <cstdint>
#include <functional>
#include <vector>

#include "shell/language_list.h"
#include "shell/resources.h"
#include "uikit/template_dialog.h"

namespace rlx {

/// The Language dialog: a drop-down list of the languages. User-interface thread.
class CLanguageDialog : public CTemplateDialog {
    Q_OBJECT

public:
    /// What OK does with the chosen index. False: it could not be kept, the user knows, and the dialog stays.
    using Choose = std::function<bool(std::uint32_t index)>;

    /// `current` is the index that is selected at first; one that the list lacks selects the first language.
    CLanguageDialog(const CResources& resources, const std::vector<Language>& languages, std::uint32_t current,
                    Choose choose, QWidget* parent = nullptr);

    void accept() override;

private:
    Choose m_choose;
};

/// The index of the locale's language, if the list names it as the world does in English; else 0.
std::uint32_t LanguageOfLocale(const std::vector<Language>& languages, const QLocale& locale);

}  // namespace rlx
