#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <string>

#include "weather/weather_places.h"

// Whatever the file, it gives no more places than it has bytes, and none without a feed name.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    using namespace rlx;
    CMemoryStream stream(std::string(reinterpret_cast<const char*>(data), size));
    const auto places = ReadWeatherPlaces(stream);
    if (places.size() > size) std::abort();
    for (const auto& place : places)
        if (place.feedName.empty() || FallbackFeedName(place.place).size() > place.place.size()) std::abort();
    return 0;
}
