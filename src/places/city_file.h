#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <functional>
#include <string>

#include "base/byte_stream.h"

namespace rlx {

/// The eleven fields of a line of the city file, in their order and as they stand there.
struct CityFields {
    std::u16string zone;  ///< IANA name; the database drops it
    std::u16string name;
    std::u16string country;
    std::u16string longitude;
    std::u16string latitude;
    std::u16string gmt;                 ///< a `GmtOffset`
    std::array<std::u16string, 5> dst;  ///< hours, start day, start hour, end day, end hour

    /// What the database and all settings know the city by: name:country.
    std::u16string Place() const { return name + u":" + country; }

    friend bool operator==(const CityFields&, const CityFields&) = default;
};

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
/// Calls `take` for each city with the number of bytes read up to its end; false from it ends the reading. Returns
/// false only then.
bool ReadCityFields(IByteStream& file, const std::function<bool(CityFields&&, std::size_t)>& take);

/// The same in the form of the database.
bool ReadCityFile(IByteStream& file, const std::function<bool(const CityLine&)>& take);

}  // namespace rlx
