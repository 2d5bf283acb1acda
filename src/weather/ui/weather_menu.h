#pragma once

#include <QMenu>
#include <filesystem>

#include "shell/resources.h"
#include "uikit/template_menu.h"
#include "weather/ui/icon_set_menu.h"

namespace rlx {

/// The menu of the Weather screen, which is about one of its places.
class CWeatherMenu : public QMenu {
    Q_OBJECT

public:
    /// References must outlive the menu.
    CWeatherMenu(const CResources& resources, IFileSystem& files, const std::filesystem::path& applicationFolder,
                 CWeatherSettings& choices, QWidget* parent);

    /// Opens at a point of the screen of the device.
    void Open(std::size_t place, bool dayByDay, const QPoint& globalPoint);

signals:
    void CityWanted(std::size_t place);
    void OtherViewWanted();
    void IconSetChosen();

private:
    CCommandTable m_commands;
    std::size_t m_place = 0;
};

}  // namespace rlx
