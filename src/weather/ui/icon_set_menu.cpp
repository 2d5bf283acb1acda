#include "weather/ui/icon_set_menu.h"

#include "uikit/qt_text.h"
#include "weather/icon_set.h"
#include "weather/text_ids.h"

namespace rlx {

CIconSetMenu::CIconSetMenu(IFileSystem& files, std::filesystem::path applicationFolder, const ITexts& texts,
                           CWeatherSettings& choices, QWidget* parent)
    : QMenu(ToQString(texts.Text(kTextIconSet)), parent),
      m_files(files),
      m_applicationFolder(std::move(applicationFolder)),
      m_texts(texts),
      m_choices(choices) {
    connect(this, &QMenu::aboutToShow, this, &CIconSetMenu::Fill);
}

/// The folders are looked at each time, so that a set that was just copied there can be chosen.
void CIconSetMenu::Fill() {
    clear();
    AddSet(ToQString(m_texts.Text(kTextIconsOfSkin)), {});
    AddSet(ToQString(m_texts.Text(kTextIconsStandard)), u"default");
    for (const auto& folder : FindIconSets(m_files, m_applicationFolder))
        AddSet(ToQString(std::u16string_view(folder).substr(folder.rfind(u'\\') + 1)), folder);
}

void CIconSetMenu::AddSet(const QString& text, const std::u16string& folder) {
    QAction* action = addAction(text);
    action->setCheckable(true);
    action->setChecked(folder == m_choices.IconFolder());
    connect(action, &QAction::triggered, this, [this, folder] {
        m_choices.SaveIconFolder(folder);
        emit Chosen();
    });
}

}  // namespace rlx
