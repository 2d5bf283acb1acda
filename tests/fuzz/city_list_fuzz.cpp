#include <algorithm>
#include <array>

#include "base/read_token.h"
#include "fuzz/target.h"
#include "places/city_list.h"

namespace {

bool IsCut(const rlx::CityFields& city) {
    const std::array fields = {&city.zone,   &city.name,   &city.country, &city.longitude, &city.latitude, &city.gmt,
                               &city.dst[0], &city.dst[1], &city.dst[2],  &city.dst[3],    &city.dst[4]};
    return std::ranges::any_of(fields, [](const auto* field) { return field->size() == rlx::kMaxTokenLength; });
}

}  // namespace

// Any bytes as "cities.lst": what is read can be written, and reads back the same.
void Try(std::string_view bytes) {
    const rlx::CityList list = rlx::ParseCityList(std::string(bytes));
    FailIf(list.cities.size() > bytes.size());
    const auto written = rlx::CityListBytes(list);
    FailIf(!written && std::ranges::none_of(list.cities, IsCut));
    FailIf(written && rlx::ParseCityList(*written) != list);
}
