#pragma once

#include <array>
#include <cstdint>
#include <string>

#include "shell/registry_store.h"
#include "weather/temperature.h"

namespace rlx {

inline constexpr std::size_t kWeatherPlaceCount = 4;

/// The two tips of the Weather screen; the numbers are those that the setting "weattip" keeps.
enum class WeatherTip : std::uint32_t { kNone = 0, kOverview = 1, kDays = 2 };

/// The choices of the Weather screen. Each read shows what is stored now, each write is there at once. Does not own the
/// registry.
class CWeatherSettings {
public:
    using Places = std::array<std::uint32_t, kWeatherPlaceCount>;

    explicit CWeatherSettings(CRegistryStore& store) : m_store(store) {}

    /// `CityIndex` of the four places. On first use they are the home city and the first three world clocks, as the
    /// clocks' settings or their defaults have them; these are written at once when the whole key is missing.
    Places LoadPlaces();
    void SavePlace(std::size_t slot, std::uint32_t cityIndex);

    /// "daybyday": the day-by-day view instead of the overview.
    bool DayByDay();
    void SaveDayByDay(bool on);

    /// "fore": which of the four places is shown in full, 0 to 3; a number beyond counts as 0.
    std::size_t ShownPlace();
    void SaveShownPlace(std::size_t slot);

    /// "fara"; any number but 1 is Celsius.
    TemperatureUnit Unit();
    void SaveUnit(TemperatureUnit unit);

    /// "icondir": the icon set that the user chose; empty when none was chosen. See `ChooseIconSet`.
    std::u16string IconFolder();
    void SaveIconFolder(std::u16string_view folder);

    /// The tip to show on entering a view, `kNone` when it has been shown; remembers it as shown. Who has seen the tip
    /// of the days needs none for the overview.
    WeatherTip TakeTip(bool dayByDay);

private:
    std::uint32_t Number(std::u16string_view name);
    void SetNumber(std::u16string_view name, std::uint32_t value);
    std::uint32_t ClockCity(std::u16string_view name, std::uint32_t fallback);

    CRegistryStore& m_store;
};

}  // namespace rlx
