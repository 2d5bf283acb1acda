#include "places/zone_city.h"

#include <algorithm>

#include "base/text.h"

namespace rlx {

std::optional<std::u16string> CityOfZone(const CityList& list, std::string_view zone) {
    const std::u16string wanted = Widen(zone);
    std::u16string name = wanted.substr(wanted.rfind(u'/') + 1);
    std::replace(name.begin(), name.end(), u'_', u' ');
    name = FoldForSearch(name);
    const CityFields* found = nullptr;
    for (const CityFields& city : list.cities) {
        if (city.zone != wanted) continue;
        if (FoldForSearch(city.name) == name) return city.Place();
        if (found == nullptr) found = &city;
    }
    return found == nullptr ? std::nullopt : std::optional(found->Place());
}

}  // namespace rlx
