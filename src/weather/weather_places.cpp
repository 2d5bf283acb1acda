#include "weather/weather_places.h"

#include "base/number.h"
#include "base/read_token.h"
#include "base/text.h"

namespace rlx {

std::vector<WeatherPlace> ReadWeatherPlaces(IByteStream& stream) {
    CByteReader reader(stream);
    std::vector<WeatherPlace> places;
    const auto count = ParseInteger(ReadToken(reader, '\n'));
    for (std::int32_t i = 0; i < count; ++i) {
        auto place = ReadToken(reader, ';');
        if (place.empty() || place == u">") break;
        place.append(u":").append(ReadToken(reader, ';'));
        auto feedName = Trim(ReadToken(reader, '\n'));
        if (!feedName.empty()) places.push_back({std::move(place), std::move(feedName)});
    }
    return places;
}

std::u16string FallbackFeedName(std::u16string_view place) {
    return std::u16string(place.substr(0, place.find(u':')));
}

}  // namespace rlx
