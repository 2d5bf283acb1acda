#pragma once

#include <filesystem>
#include <optional>
#include <string>
#include <string_view>

#include "platform/file_system.h"

namespace rlx {

/// A city that came, went or got another name; places are "Paris:France".
struct WeatherPlaceChange {
    std::optional<std::u16string> before;  ///< nothing for a city that came
    std::optional<std::u16string> after;   ///< nothing for a city that went
};

/// The feed name that the list gives to a new place: "São Tomé:Brazil" is "sao-tome_brazil".
std::u16string MakeFeedName(std::u16string_view place);

/// Brings "cities.wet" (docs/formats/cities-wet.md) in line with a change of the list of cities: a new city gets a line
/// with a feed name of its own, a renamed one keeps its feed name, the line of one that went goes. All other lines stay
/// as they are. False when the file cannot be read or written; it is then as it was.
bool FollowCityChange(IFileSystem& files, const std::filesystem::path& listFile, const WeatherPlaceChange& change);

}  // namespace rlx
