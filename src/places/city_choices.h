#pragma once

#include <string>
#include <vector>

#include "places/city_database.h"
#include "shell/registry_store.h"

namespace rlx {

/// A city that got another place text.
struct CityRename {
    std::u16string from;
    std::u16string to;

    friend bool operator==(const CityRename&, const CityRename&) = default;
};

/// The settings that hold a city: home, the four world clocks, the four weather places by their numbers, the reminders
/// by their places. Takes note of their cities before the cities database changes and finds them again afterwards. Used
/// once for each change, within the transaction that makes it. References must outlive it.
class CCityChoices {
public:
    CCityChoices(CCityDatabase& cities, CRegistryStore& settings) : m_cities(cities), m_settings(settings) {}

    /// Reads the settings, what is not stored by its default, and the cities that they stand for.
    void Remember(const std::vector<CityRename>& renames);

    /// Writes the new indexes. A choice whose city is gone gets its default. False when the device refuses.
    bool Restore();

    /// "Name, country" of the cities that were chosen and are gone; filled by `Restore`.
    const std::vector<std::u16string>& Gone() const { return m_gone; }

private:
    struct Choice {
        std::u16string_view key;
        std::u16string_view name;
        bool stored = false;
        CityIndex index = 0;
        std::u16string place;     ///< empty: no such city, the choice stays as it is
        std::u16string newPlace;  ///< what the city is to be called; the same unless it is renamed
        CityIndex rank = 0;       ///< among cities of the same place, which keep their order
    };

    Choice Note(std::u16string_view key, std::u16string_view name, CityIndex fallback,
                const std::vector<CityRename>& renames);
    CityIndex IndexNow(const Choice& choice, CityIndex fallback);
    bool Write(const Choice& choice, CityIndex index);
    bool RestoreHomeName(CityIndex home);
    bool RestoreReminders();
    void NoteGone(const std::u16string& place);

    CCityDatabase& m_cities;
    CRegistryStore& m_settings;
    std::vector<Choice> m_clocks;
    std::vector<Choice> m_weather;
    std::u16string m_homeName;
    std::vector<CityRename> m_reminders;  ///< places before and after, for those whose city is known
    std::vector<std::u16string> m_gone;
};

}  // namespace rlx
