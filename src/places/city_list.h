#pragma once

#include <filesystem>
#include <optional>
#include <string>
#include <vector>

#include "places/city_file.h"
#include "platform/file_system.h"

namespace rlx {

/// The whole city file, for those who change it: what they leave alone stays as it is, byte for byte, except that the
/// first line becomes the number of the cities.
struct CityList {
    std::vector<CityFields> cities;  ///< in the order of the file
    std::string rest;                ///< what stands behind them: an end mark, lines beyond the promised number

    friend bool operator==(const CityList&, const CityList&) = default;
};

CityList ParseCityList(const std::string& bytes);

/// The bytes of the file. Nothing when they would not be read back as `list`: a field holds a delimiter, an end mark, a
/// character outside ISO 8859-1, or is too long.
std::optional<std::string> CityListBytes(const CityList& list);

/// Files larger than this are refused.
inline constexpr std::size_t kMaxCityFile = std::size_t{256} * 1024 * 1024;

/// Nothing when the file cannot be read.
std::optional<CityList> ReadCityList(IFileSystem& files, const std::filesystem::path& file);

}  // namespace rlx
