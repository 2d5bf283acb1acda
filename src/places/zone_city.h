#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "places/city_list.h"

namespace rlx {

/// The place of the city that stands best for a time zone: the one after which the zone is named ("America/New_York"),
/// else the first of the list that lies in it. Nothing when none does.
std::optional<std::u16string> CityOfZone(const CityList& list, std::string_view zone);

}  // namespace rlx
