#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "places/city_database.h"

namespace rlx {

/// Finds cities by what a person types. Does not own the database, which must outlive it. Used from one thread.
class CCitySearch {
public:
    explicit CCitySearch(CCityDatabase& cities) : m_cities(cities) {}

    /// The cities whose name begins with `text`, case ignored, in the order of their indexes; all for an empty text.
    /// Reads no more of the database than it must.
    std::vector<CityIndex> FindByBeginning(std::u16string_view text);

    /// The cities that fit `text`, case, accents and blanks around it ignored, best first: those of that name, whose
    /// name (or name and country) begins with it, in whose name a word begins with it, in whose country a word begins
    /// with it, and at last those that have it anywhere. Equals stand in the order of their indexes; all for an empty
    /// text. The cities are read at the first call; `Forget` after the list of cities has changed.
    std::vector<CityIndex> Find(std::u16string_view text);

    /// The city of exactly that place (name, colon, country), the first where several have it.
    std::optional<CityIndex> FindPlace(std::u16string_view place);

    void Forget() { m_entries.clear(); }

private:
    /// Folded for searching; "name country" in one text, so that one can type on into the country.
    struct Entry {
        std::u16string text;
        std::size_t nameLength = 0;
    };

    void Load();
    CityIndex FirstFrom(std::u16string_view place);

    static int RankOf(const Entry& entry, std::u16string_view folded);

    CCityDatabase& m_cities;
    std::vector<Entry> m_entries;
};

}  // namespace rlx
