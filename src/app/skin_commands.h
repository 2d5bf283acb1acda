#pragma once

#include <QObject>
#include <QStringList>
#include <filesystem>

#include "app/main_window.h"
#include "shell/registry_store.h"
#include "skins/ui/skin_ports.h"
#include "uikit/look.h"

namespace rlx {

/// What the window does with skins: loads the one that the settings name, lets a person choose another one or edit it,
/// and tells of its broken pictures. References must outlive it. User-interface thread.
class CSkinCommands : public QObject {
    Q_OBJECT

public:
    CSkinCommands(const SkinPorts& ports, std::filesystem::path applicationFolder, CRegistryStore& settings,
                  CLook& look, CMainWindow& window);

    /// Puts the skin of the settings in force.
    void Load();

    /// The dialog in which a skin is chosen.
    void Choose();

    /// The dialog in which the skin in force is edited.
    void Edit();

private:
    std::u16string Setting() const;
    void WriteSetting(std::u16string_view name, std::u16string_view text);
    void NoteBroken(const QString& file);
    void TellBroken();
    QPixmap PictureOf(SkinSection section);

    SkinPorts m_ports;
    std::filesystem::path m_applicationFolder;
    CRegistryStore& m_settings;
    CLook& m_look;
    CMainWindow& m_window;
    QStringList m_told;    ///< broken pictures that were told of
    QStringList m_toTell;  ///< and those that wait
    bool m_telling = false;
};

}  // namespace rlx
