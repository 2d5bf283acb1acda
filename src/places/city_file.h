#pragma once

#include <cstdint>
#include <functional>
#include <string>

#include "base/byte_stream.h"

namespace rlx {

/// One line of the city file in the form in which the database keeps it.
struct CityLine {
    std::u16string place;     ///< name:country
    std::u16string position;  ///< longitude:latitude
    std::u16string gmt;
    std::u16string dstRule;    ///< hours:startDay:startHour:endDay:endHour
    std::u16string zone = {};  ///< IANA name; the database drops it
};

/// Reads a city file: a line with the number of cities, then for each city eleven fields, ten ended by ";" and the last
/// by a line feed. Reading ends after the promised number of lines, at a line whose name
/// or longitude is ">" (or whose ninth field is), or with the file: a line that would begin there gives nothing, and a
/// last line that ends before its eleventh field gives a city only if it has a name.
///
/// Calls `take` for each city; false from it ends the reading. Returns false only then.
bool ReadCityFile(IByteStream& file, const std::function<bool(const CityLine&)>& take);

}  // namespace rlx
