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
        const auto name = ReadToken(reader, ';');
        if (name.empty() || name == u">") break;
        const auto country = ReadToken(reader, ';');
        const auto feedName = Trim(ReadToken(reader, '\n'));
        if (!feedName.empty()) places.push_back({name + u":" + country, feedName});
    }
    return places;
}

std::u16string FallbackFeedName(std::u16string_view place) {
    return std::u16string(place.substr(0, place.find(u':')));
}

}  // namespace rlx
