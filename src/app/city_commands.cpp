#include "app/city_commands.h"

#include <QGuiApplication>
#include <utility>

#include "base/number.h"
#include "places/city_list_messages.h"
#include "places/rules_date.h"
#include "places/rules_refresh.h"
#include "places/text_ids.h"
#include "places/ui/cities_dialog.h"
#include "places/zone_city.h"
#include "shell/boxes.h"
#include "shell/clock_settings.h"
#include "shell/fill_text.h"
#include "shell/program_paths.h"
#include "shell/setting_names.h"
#include "weather/weather_list.h"
#include "weather/weather_store.h"

namespace rlx {

CCityCommands::CCityCommands(const Ports& ports, std::filesystem::path folder, const std::filesystem::path& cityFile)
    : m_ports(ports),
      m_folder(std::move(folder)),
      m_lists(ports.objects, ports.registry, ports.files, ports.cities, cityFile),
      m_zones(ProgramFolders({}).executableFolder),
      m_editor(m_lists, ports.files, cityFile, m_zones, ports.resources),
      m_cityFile(cityFile) {
    ports.settings.ReadDword(RootOf(keys::kWorldClock), keys::kWorldClock, names::kHomeClock);
    m_isFirstStart = ports.settings.Status() != ReadStatus::kRead;
    ReportCityList(m_lists.Finish(), m_ports.boxes, m_ports.resources);
}

std::optional<CityIndex> CCityCommands::AskHomeCity(
    const std::function<std::optional<CityIndex>(CityIndex proposed)>& choose) {
    if (!std::exchange(m_isFirstStart, false) || m_ports.cities.Count() == 0) return std::nullopt;
    return choose(HomeProposal());
}

CityIndex CCityCommands::HomeProposal() {
    const auto list = ReadCityList(m_ports.files, m_cityFile);
    const auto place = list ? CityOfZone(*list, m_zones.OwnZone()) : std::nullopt;
    const auto city = place ? m_ports.cities.IndexOf(*place) : std::nullopt;
    return city.value_or(kDefaultClockCities.front());
}

void CCityCommands::RefreshRules() {
    const Date today = m_ports.clock.Now().date;
    QGuiApplication::setOverrideCursor(Qt::WaitCursor);
    const RulesRefresh refresh = rlx::RefreshRules(m_lists, m_zones, m_ports.files, m_folder, today);
    QGuiApplication::restoreOverrideCursor();
    if (!ReportRefresh(refresh, m_ports.boxes, m_ports.resources)) return;
    m_window->RefreshScreens();
    m_ports.boxes.Show(NoteBox(m_ports.resources, RefreshText(refresh, today.year, m_ports.resources)));
}

void CCityCommands::Edit() {
    const bool twelve = m_ports.settings.ReadDwordOr(keys::kRoamlytix, names::kTwelveHour, 0) == 1;
    const ClockSettings clocks = LoadClockSettings(m_ports.settings);
    CCityTimes times(m_ports.cities, m_ports.clock, m_ports.resources, clocks);
    CityEditing editing{m_editor, m_zones, m_ports.boxes, m_ports.clock.Now().date, {}};
    editing.changed = [this](const std::u16string& before, const std::u16string& after) {
        FollowInWeather(before, after);
        m_window->RefreshScreens();
    };
    CCitiesDialog dialog(m_ports.cities, times, m_ports.resources, twelve ? ClockForm::kTwelve : ClockForm::kTwentyFour,
                         clocks.home, editing, m_window);
    dialog.exec();
}

/// The forecasts have a list of their own, by place.
void CCityCommands::FollowInWeather(const std::u16string& before, const std::u16string& after) {
    if (before == after) return;
    WeatherPlaceChange change;
    if (!before.empty()) change.before = before;
    if (!after.empty()) change.after = after;
    const std::filesystem::path list = m_folder / "cities.wet";
    CWeatherStore weather(m_ports.objects, m_ports.files, list);
    const bool followed =
        FollowCityChange(m_ports.files, list, change) && weather.Rebuild() != WeatherStoreState::kRefused;
    if (followed || after.empty()) return;
    const auto& texts = m_ports.resources;
    const std::u16string name = after.substr(0, after.find(u':'));
    m_ports.boxes.Show(NoteBox(texts, FillText(texts.Text(kTextForecastListNotChanged), {u"cities.wet", name})));
}

void CCityCommands::TellOldRules() {
    CRegistryStore& settings = m_ports.settings;
    const auto made = ReadRulesDate(m_ports.files, m_folder);
    const int year = m_ports.clock.Now().date.year;
    if (!made || made->year >= year) return;
    constexpr auto kKey = keys::kRoamlytix;
    const auto thisYear = static_cast<std::uint32_t>(year);
    const bool told = settings.ReadDword(RootOf(kKey), kKey, names::kRulesTold) == thisYear;
    if (told || !settings.WriteDword(RootOf(kKey), kKey, names::kRulesTold, thisYear)) return;
    const auto& texts = m_ports.resources;
    m_ports.boxes.Show(NoteBox(texts, FillText(texts.Text(kTextRulesOutdated), {FormatInteger(made->year)})));
}

}  // namespace rlx
