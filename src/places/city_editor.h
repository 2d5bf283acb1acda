#pragma once

#include <optional>
#include <string>

#include "places/city_draft.h"
#include "places/city_list_store.h"

namespace rlx {

/// What became of an edit: a fault of the draft, or what the list store says.
struct CityEdit {
    std::optional<CityFault> fault;
    CityListResult list;
    std::u16string place;  ///< of the city as it is now in the list

    bool Done() const { return !fault && list.state == CityListChange::kDone; }
};

/// Adds, changes and deletes cities of the list, which stays in the order of the places. Each edit is in force at once.
/// References must outlive it. Used from one thread.
class CCityEditor {
public:
    CCityEditor(CCityListStore& lists, IFileSystem& files, std::filesystem::path cityFile, ITimeZones& zones,
                const ITexts& texts);

    /// The first city of that place as the file has it now; nothing when there is none.
    std::optional<CityFields> Find(std::u16string_view place);

    CityEdit Add(const CCityDraft& draft);

    /// `before`: as `Find` gave it. A city that somebody else changed meanwhile is a fault.
    CityEdit Change(const CityFields& before, const CCityDraft& draft);
    CityEdit Delete(const CityFields& before);

private:
    CityFault Gone(const CityFields& city) const;
    CityFault Exists(const CityFields& city) const;

    CCityListStore& m_lists;
    IFileSystem& m_files;
    const std::filesystem::path m_cityFile;
    ITimeZones& m_zones;
    const ITexts& m_texts;
};

}  // namespace rlx
