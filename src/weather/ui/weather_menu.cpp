#include "weather/ui/weather_menu.h"

#include "shell/command_ids.h"

namespace rlx {

CWeatherMenu::CWeatherMenu(const CResources& resources, IFileSystem& files,
                           const std::filesystem::path& applicationFolder, CWeatherSettings& choices, QWidget* parent)
    : QMenu(parent) {
    setObjectName("weatherMenu");
    m_commands.Add(kCommandWeatherPlace, this, [this] { emit CityWanted(m_place); });
    m_commands.Add(kCommandWeatherDays, this, [this] { emit OtherViewWanted(); })->setCheckable(true);
    if (const auto entries = resources.Menu(kMenuWeather)) FillMenu(*this, *entries, m_commands);
    auto* iconSets = new CIconSetMenu(files, applicationFolder, resources, choices, this);
    addMenu(iconSets);
    connect(iconSets, &CIconSetMenu::Chosen, this, &CWeatherMenu::IconSetChosen);
}

void CWeatherMenu::Open(std::size_t place, bool dayByDay, const QPoint& globalPoint) {
    m_place = place;
    m_commands.Find(kCommandWeatherDays)->setChecked(dayByDay);
    popup(globalPoint);
}

}  // namespace rlx
