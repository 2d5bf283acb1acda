#pragma once

#include <cstddef>
#include <map>
#include <optional>
#include <string>

#include "places/city_list_store.h"
#include "places/zone_rule.h"

namespace rlx {

/// What a refresh of the daylight-saving rules did.
struct RulesRefresh {
    enum class State {
        kDone,
        kNoZones,  ///< the system has no zone data
        kFailed,   ///< see `list`
    };
    State state = State::kDone;
    CityListResult list;
    std::size_t changed = 0;  ///< cities whose offset or rule is another one now
    std::size_t kept = 0;     ///< cities that keep their rule because the system does not know their zone
};

/// The day for which the rules of a year are made: `today` in its own year, else the first day of the year.
Date RulesDay(int year, const Date& today);

/// Writes offset and daylight saving of every city in the list anew, from the zone in its leading field, for the year
/// of `day`, and the date of the rules after that. A list that is right already is not written.
RulesRefresh RefreshRules(CCityListStore& store, ITimeZones& zones, IFileSystem& files,
                          const std::filesystem::path& folder, const Date& day);

}  // namespace rlx
