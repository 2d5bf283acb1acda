#pragma once

#include <QObject>
#include <filesystem>
#include <functional>
#include <optional>

#include "app/main_window.h"
#include "places/city_editor.h"
#include "places/city_list_store.h"
#include "platform/clock.h"
#include "platform/posix/time_zones_module.h"
#include "shell/resources.h"

namespace rlx {

/// What the window does with the list of cities as a whole: edits it and keeps its daylight-saving rules young.
/// References must outlive it. User-interface thread.
class CCityCommands : public QObject {
    Q_OBJECT

public:
    struct Ports {
        IObjectStore& objects;
        IRegistry& registry;
        IFileSystem& files;
        IMessageBoxes& boxes;
        const IClock& clock;
        const CResources& resources;
        CCityDatabase& cities;
        CRegistryStore& settings;
    };

    /// `folder`: the application folder. To be made before the clocks write their defaults. Ends what a run before left
    /// half done.
    CCityCommands(const Ports& ports, std::filesystem::path folder, const std::filesystem::path& cityFile);

    /// The window stands from now on; it shows what changes.
    void SetWindow(CMainWindow& window) { m_window = &window; }

    /// Makes the rules of all cities anew for the year of the device's clock.
    void RefreshRules();

    /// At the very first start, lets the person say which city is home, that of the system's time zone proposed.
    /// Nothing when a home city was chosen before or the choice was called off.
    std::optional<CityIndex> AskHomeCity(const std::function<std::optional<CityIndex>(CityIndex proposed)>& choose);

    /// The dialog in which cities are added, changed and deleted.
    void Edit();

    /// Says once a year that the rules are those of an earlier one.
    void TellOldRules();

private:
    CityIndex HomeProposal();
    void FollowInWeather(const std::u16string& before, const std::u16string& after);

    Ports m_ports;
    std::filesystem::path m_folder;
    CCityListStore m_lists;
    CTimeZonesModule m_zones;
    CCityEditor m_editor;
    std::filesystem::path m_cityFile;
    CMainWindow* m_window = nullptr;
    bool m_isFirstStart = false;
};

}  // namespace rlx
