#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "base/byte_stream.h"

namespace rlx {

/// A city that the feed server has a forecast for.
struct WeatherPlace {
    std::u16string place;     ///< as in the cities database: name, ":", country
    std::u16string feedName;  ///< what the server calls it

    friend bool operator==(const WeatherPlace&, const WeatherPlace&) = default;
};

/// Reads "cities.wet" (docs/formats/cities-wet.md). Takes any bytes: reading ends at the promised count, at a name of
/// ">" or at the end of the file, whichever comes first; a line without a name or a feed name is left out.
std::vector<WeatherPlace> ReadWeatherPlaces(IByteStream& stream);

/// What stands for the feed name of a place that "cities.wet" does not list: the city's name, what is before the colon.
std::u16string FallbackFeedName(std::u16string_view place);

}  // namespace rlx
