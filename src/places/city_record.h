#pragma once

#include <cstdint>
#include <string>

#include "places/dst_rule.h"
#include "places/gmt_offset.h"

namespace rlx {

/// A city's identity in settings and screens: its zero-based position in the order of the places. It moves when cities
/// that sort before it come or go.
using CityIndex = std::uint32_t;

/// One city as the rest of the program uses it. Texts as stored; of a city that does not exist all are empty.
struct CityRecord {
    CityIndex index = 0;
    std::u16string name;
    std::u16string country;
    std::u16string longitude;              ///< degrees, east positive
    std::u16string latitude;               ///< degrees, north positive
    std::u16string gmtText;                ///< what `gmt` was read from
    GmtOffset gmt = 0;                     ///< without daylight saving
    DstRule dstRule = {.observes = true};  ///< what an empty text gives: no "0" stands in it
};

}  // namespace rlx
