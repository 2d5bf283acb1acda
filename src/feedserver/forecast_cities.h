#pragma once

#include <filesystem>
#include <map>
#include <string>

#include "base/calendar.h"
#include "places/dst_rule.h"
#include "places/gmt_offset.h"
#include "platform/file_system.h"

namespace rlx {

/// A city that can be asked for.
struct ForecastCity {
    std::string feedName;  ///< what clients call it
    double latitude = 0;   ///< degrees, north positive, -90 to 90
    double longitude = 0;  ///< degrees, east positive, -180 to 180
    std::string zone;      ///< IANA name
    GmtOffset gmt = 0;     ///< without daylight saving
    DstRule dst;
};

/// The cities by feed name.
using ForecastCities = std::map<std::string, ForecastCity, std::less<>>;

/// "cities.wet" joined with "cities.lst" of `folder`. A city that either lacks, whose position is none, or whose feed
/// name holds anything but a to z, digits, "-" and "_" is left out. Takes any bytes.
ForecastCities LoadForecastCities(IFileSystem& files, const std::filesystem::path& folder);

/// What the city's clock shows ahead of UTC, in seconds, daylight saving in it.
std::int64_t UtcOffsetOf(const ForecastCity& city, const DateTime& utc);

}  // namespace rlx
