#include "fuzz/target.h"
#include "weather/weather_places.h"

// Whatever the file, it gives no more places than it has bytes, and none without a feed name.
void Try(std::string_view bytes) {
    using namespace rlx;
    CMemoryStream stream{std::string(bytes)};
    const auto places = ReadWeatherPlaces(stream);
    FailIf(places.size() > bytes.size());
    for (const auto& place : places)
        FailIf(place.feedName.empty() || FallbackFeedName(place.place).size() > place.place.size());
}
