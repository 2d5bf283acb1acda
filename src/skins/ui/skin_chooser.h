#pragma once

#include <QListWidget>
#include <filesystem>
#include <functional>
#include <string>
#include <vector>

#include "skins/skin_list.h"
#include "skins/ui/skin_ports.h"
#include "uikit/template_dialog.h"

namespace rlx {

/// Where the chooser looks for skins, and what is chosen at first.
struct SkinPlaces {
    std::filesystem::path applicationFolder;  ///< its default skin comes first, then those of its folder "skins"
    std::filesystem::path otherFolder;        ///< then those of this one, when there is one
    std::u16string setting;                   ///< the setting `skin`
};

/// What choosing does to the rest of the program.
struct SkinActions {
    std::function<void(const std::u16string& setting)> choose;  ///< stores the setting, puts the skin in force
    std::function<void(const std::filesystem::path&)> keepFolder;
    std::function<std::filesystem::path(QWidget* parent, const std::filesystem::path&)> browse;  ///< empty: cancelled
};

/// The dialog in which a skin is chosen: previews with names; skins that fail their checks are marked, with the reason.
/// User-interface thread.
class CSkinChooser : public CTemplateDialog {
    Q_OBJECT

public:
    CSkinChooser(const SkinPorts& ports, SkinPlaces places, SkinActions actions, QWidget* parent = nullptr);

    /// Puts the selected skin in force and closes. For one that fails its checks a message says so and the dialog
    /// stays.
    void accept() override;

private:
    void SetUpList();
    void Fill();
    void AddSkins(std::vector<SkinEntry> skins);
    void AddRow(const SkinEntry& skin);
    void Browse();
    void Say(int text, const std::u16string& filling = {});

    SkinPorts m_ports;
    SkinPlaces m_places;
    SkinActions m_actions;
    std::vector<SkinEntry> m_skins;  ///< of the list's rows
    QListWidget* m_list;
};

}  // namespace rlx
