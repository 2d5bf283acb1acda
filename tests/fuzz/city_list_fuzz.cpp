#include <algorithm>
#include <array>
#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <string>

#include "base/read_token.h"
#include "places/city_list.h"

namespace {

bool IsCut(const rlx::CityFields& city) {
    const std::array fields = {&city.zone,   &city.name,   &city.country, &city.longitude, &city.latitude, &city.gmt,
                               &city.dst[0], &city.dst[1], &city.dst[2],  &city.dst[3],    &city.dst[4]};
    return std::ranges::any_of(fields, [](const auto* field) { return field->size() == rlx::kMaxTokenLength; });
}

}  // namespace

// Any bytes as "cities.lst": what is read can be written, and reads back the same.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const rlx::CityList list = rlx::ParseCityList(std::string(reinterpret_cast<const char*>(data), size));
    if (list.cities.size() > size) std::abort();
    const auto bytes = rlx::CityListBytes(list);
    if (!bytes && std::ranges::none_of(list.cities, IsCut)) std::abort();
    if (bytes && rlx::ParseCityList(*bytes) != list) std::abort();
    return 0;
}
