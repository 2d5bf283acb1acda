#include "places/city_choices.h"

#include <algorithm>

#include "shell/clock_settings.h"
#include "shell/setting_names.h"

namespace rlx {

namespace {

constexpr std::size_t kClockCount = kDefaultClockCities.size();

std::u16string_view ClockName(std::size_t clock) {
    return clock == 0 ? names::kHomeClock : names::kClocks[clock - 1];
}

std::u16string Readable(const std::u16string& place) {
    const std::size_t colon = place.find(u':');
    return colon == std::u16string::npos ? place : place.substr(0, colon) + u", " + place.substr(colon + 1);
}

}  // namespace

CCityChoices::Choice CCityChoices::Note(std::u16string_view key, std::u16string_view name, CityIndex fallback,
                                        const std::vector<CityRename>& renames) {
    Choice choice{key, name, false, fallback, {}, {}, 0};
    const CityIndex stored = m_settings.ReadDword(RootOf(key), key, name);
    choice.stored = m_settings.Status() == ReadStatus::kRead;
    if (choice.stored) choice.index = stored;
    choice.place = m_cities.GetPlace(choice.index);
    if (choice.place.empty()) return choice;
    if (const auto first = m_cities.IndexOf(choice.place)) choice.rank = choice.index - *first;
    const auto renamed = std::ranges::find(renames, choice.place, &CityRename::from);
    choice.newPlace = renamed == renames.end() ? choice.place : renamed->to;
    return choice;
}

void CCityChoices::Remember(const std::vector<CityRename>& renames) {
    for (std::size_t clock = 0; clock < kClockCount; ++clock)
        m_clocks.push_back(Note(keys::kWorldClock, ClockName(clock), kDefaultClockCities[clock], renames));
    // A weather place that is not stored follows its clock by itself.
    for (const std::u16string_view name : names::kWeatherPlaces)
        m_weather.push_back(Note(keys::kWeather, name, 0, renames));
    m_homeName = m_cities.GetName(m_clocks.front().index);
    for (const std::u16string_view name : names::kAlarmCities) {
        const std::u16string place = m_settings.ReadString(RootOf(keys::kAlarms), keys::kAlarms, name);
        if (place.empty() || !m_cities.IndexOf(place)) continue;
        const auto renamed = std::ranges::find(renames, place, &CityRename::from);
        m_reminders.push_back({place, renamed == renames.end() ? place : renamed->to});
    }
}

bool CCityChoices::Restore() {
    std::vector<CityIndex> clocks;
    for (std::size_t clock = 0; clock < kClockCount; ++clock) {
        clocks.push_back(IndexNow(m_clocks[clock], kDefaultClockCities[clock]));
        if (!Write(m_clocks[clock], clocks.back())) return false;
    }
    for (std::size_t i = 0; i < m_weather.size(); ++i) {
        const Choice& choice = m_weather[i];
        if (choice.stored && !Write(choice, IndexNow(choice, clocks[i]))) return false;
    }
    return RestoreReminders() && RestoreHomeName(clocks.front());
}

CityIndex CCityChoices::IndexNow(const Choice& choice, CityIndex fallback) {
    if (choice.place.empty()) return choice.index;
    // A rename that was noted may never have come into the file.
    auto first = m_cities.IndexOf(choice.newPlace);
    if (!first) first = m_cities.IndexOf(choice.place);
    if (!first) {
        NoteGone(choice.place);
        return fallback < m_cities.Count() ? fallback : 0;
    }
    const std::u16string place = m_cities.GetPlace(*first);
    CityIndex index = *first + choice.rank;
    while (index > *first && m_cities.GetPlace(index) != place)
        --index;
    return index;
}

bool CCityChoices::Write(const Choice& choice, CityIndex index) {
    return index == choice.index || m_settings.WriteDword(RootOf(choice.key), choice.key, choice.name, index);
}

void CCityChoices::NoteGone(const std::u16string& place) {
    const std::u16string city = Readable(place);
    if (std::ranges::find(m_gone, city) == m_gone.end()) m_gone.push_back(city);
}

/// A reminder whose city is gone keeps its name and goes by the home clock, until the city is back.
bool CCityChoices::RestoreReminders() {
    for (const std::u16string_view name : names::kAlarmCities) {
        const std::u16string stored = m_settings.ReadString(RootOf(keys::kAlarms), keys::kAlarms, name);
        const auto noted = std::ranges::find(m_reminders, stored, &CityRename::from);
        if (noted == m_reminders.end()) continue;
        const bool renamed = noted->to != noted->from && m_cities.IndexOf(noted->to).has_value();
        if (!renamed && !m_cities.IndexOf(stored)) NoteGone(stored);
        if (renamed && !m_settings.WriteString(RootOf(keys::kAlarms), keys::kAlarms, name, noted->to)) return false;
    }
    return true;
}

/// The name of the home city that requests carry, unless somebody put another one there.
bool CCityChoices::RestoreHomeName(CityIndex home) {
    constexpr auto kKey = keys::kRoamlytix;
    const std::u16string stored = m_settings.ReadString(RootOf(kKey), kKey, names::kHomeName);
    const std::u16string name = m_cities.GetName(home);
    if (m_settings.Status() != ReadStatus::kRead || stored != m_homeName || stored == name) return true;
    return m_settings.WriteString(RootOf(kKey), kKey, names::kHomeName, name);
}

}  // namespace rlx
