#include "weather/weather_settings.h"

#include "shell/setting_names.h"

namespace rlx {
namespace {

constexpr auto kRoot = RegistryRoot::kLocalMachine;

}  // namespace

CWeatherSettings::Places CWeatherSettings::LoadPlaces() {
    const std::array<DwordSetting, kWeatherPlaceCount> settings{
        {{names::kWeatherPlaces[0], ClockCity(names::kHomeClock, 0)},
         {names::kWeatherPlaces[1], ClockCity(names::kClocks[0], 684)},
         {names::kWeatherPlaces[2], ClockCity(names::kClocks[1], 756)},
         {names::kWeatherPlaces[3], ClockCity(names::kClocks[2], 565)}}};
    const auto values = m_store.ReadDwordsOr(keys::kWeather, settings);
    return {values[0], values[1], values[2], values[3]};
}

std::uint32_t CWeatherSettings::ClockCity(std::u16string_view name, std::uint32_t fallback) {
    // Only looked at: the clocks write their own defaults.
    const auto city = m_store.ReadDword(kRoot, keys::kWorldClock, name);
    return m_store.Status() == ReadStatus::kRead ? city : fallback;
}

void CWeatherSettings::SavePlace(std::size_t slot, std::uint32_t cityIndex) {
    if (slot < kWeatherPlaceCount) m_store.WriteDword(kRoot, keys::kWeather, names::kWeatherPlaces[slot], cityIndex);
}

bool CWeatherSettings::DayByDay() {
    return m_store.ReadDword(kRoot, keys::kWeather, names::kDayByDay) == 1;
}

void CWeatherSettings::SaveDayByDay(bool on) {
    m_store.WriteDword(kRoot, keys::kWeather, names::kDayByDay, on ? 1 : 0);
}

std::size_t CWeatherSettings::ShownPlace() {
    const auto slot = m_store.ReadDword(kRoot, keys::kWeather, names::kForecast);
    return slot < kWeatherPlaceCount ? slot : 0;
}

void CWeatherSettings::SaveShownPlace(std::size_t slot) {
    m_store.WriteDword(kRoot, keys::kWeather, names::kForecast, static_cast<std::uint32_t>(slot));
}

TemperatureUnit CWeatherSettings::Unit() {
    return Number(names::kFahrenheit) == 1 ? TemperatureUnit::kFahrenheit : TemperatureUnit::kCelsius;
}

void CWeatherSettings::SaveUnit(TemperatureUnit unit) {
    SetNumber(names::kFahrenheit, static_cast<std::uint32_t>(unit));
}

std::u16string CWeatherSettings::IconFolder() {
    return m_store.ReadString(kRoot, keys::kWeather, names::kIconFolder);
}

void CWeatherSettings::SaveIconFolder(std::u16string_view folder) {
    m_store.WriteString(kRoot, keys::kWeather, names::kIconFolder, folder);
}

WeatherTip CWeatherSettings::TakeTip(bool dayByDay) {
    const auto tip = dayByDay ? WeatherTip::kDays : WeatherTip::kOverview;
    const auto number = static_cast<std::uint32_t>(tip);
    if (Number(names::kWeatherTip) >= number) return WeatherTip::kNone;
    SetNumber(names::kWeatherTip, number);
    return tip;
}

std::uint32_t CWeatherSettings::Number(std::u16string_view name) {
    return m_store.ReadDword(kRoot, keys::kRoamlytix, name);
}

void CWeatherSettings::SetNumber(std::u16string_view name, std::uint32_t value) {
    m_store.WriteDword(kRoot, keys::kRoamlytix, name, value);
}

}  // namespace rlx
