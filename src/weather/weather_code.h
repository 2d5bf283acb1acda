#pragma once

#include <array>
#include <optional>
#include <string_view>

namespace rlx {

/// What a weather code means.
struct WeatherCondition {
    int code;               ///< WMO table 4677, the 28 codes that daily forecasts use
    std::string_view icon;  ///< name of its picture in every icon set, without the extension
    int textId;             ///< its words in the string table
};

inline constexpr std::size_t kWeatherConditionCount = 28;

/// The picture of weather that is not known.
inline constexpr std::string_view kNoWeatherIcon = "not-available";

/// All conditions, ascending by code.
extern const std::array<WeatherCondition, kWeatherConditionCount> kWeatherConditions;

/// The condition of a code; for a missing code, and one that is not in the table, the one that says "not available"
/// (code -1).
const WeatherCondition& ConditionOf(std::optional<int> code);

}  // namespace rlx
