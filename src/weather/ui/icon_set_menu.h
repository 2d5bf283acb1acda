#pragma once

#include <QMenu>
#include <filesystem>

#include "platform/file_system.h"
#include "shell/texts.h"
#include "weather/weather_settings.h"

namespace rlx {

/// The sets of weather pictures to choose from: the skin's, the standard one, and those that lie in the application
/// folder. The choice is saved. References must outlive it.
class CIconSetMenu : public QMenu {
    Q_OBJECT

public:
    CIconSetMenu(IFileSystem& files, std::filesystem::path applicationFolder, const ITexts& texts,
                 CWeatherSettings& choices, QWidget* parent);

signals:
    /// Another set was chosen.
    void Chosen();

private:
    void Fill();
    void AddSet(const QString& text, const std::u16string& folder);

    IFileSystem& m_files;
    std::filesystem::path m_applicationFolder;
    const ITexts& m_texts;
    CWeatherSettings& m_choices;
};

}  // namespace rlx
