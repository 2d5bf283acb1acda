#include "places/city_file.h"

#include <utility>

#include "base/number.h"
#include "base/read_token.h"

namespace rlx {

namespace {

constexpr std::size_t kLastField = 10;
using Fields = std::array<std::u16string, kLastField + 1>;

bool IsEndMark(const std::u16string& field) {
    return field == u">";
}

/// Reads fields 0 to 9; false when the end mark stands among them. It counts in the name and the longitude, where it
/// stops the reading at once, and in the last field of all.
bool ReadFields(CByteReader& reader, Fields& fields) {
    for (std::size_t i = 0; i < kLastField; ++i) {
        fields[i] = ReadToken(reader, ';');
        if ((i == 1 || i == 3) && IsEndMark(fields[i])) return false;
    }
    return !IsEndMark(fields[kLastField - 1]);
}

CityFields CityOf(Fields&& f) {
    return {std::move(f[0]),
            std::move(f[1]),
            std::move(f[2]),
            std::move(f[3]),
            std::move(f[4]),
            std::move(f[5]),
            {std::move(f[6]), std::move(f[7]), std::move(f[8]), std::move(f[9]), std::move(f[10])}};
}

CityLine LineOf(const CityFields& city) {
    const auto& dst = city.dst;
    return {city.Place(), city.longitude + u":" + city.latitude, city.gmt,
            dst[0] + u":" + dst[1] + u":" + dst[2] + u":" + dst[3] + u":" + dst[4], city.zone};
}

}  // namespace

bool ReadCityFields(IByteStream& file, const std::function<bool(CityFields&&, std::size_t)>& take) {
    CByteReader reader(file);
    const std::int32_t count = ParseInteger(ReadToken(reader, '\n'));
    for (std::int32_t line = 0; line < count && !reader.AtEnd(); ++line) {
        Fields fields;
        if (!ReadFields(reader, fields)) break;
        const bool cutShort = reader.AtEnd();
        fields[kLastField] = ReadToken(reader, '\n');
        if (cutShort && fields[1].empty()) break;
        if (!take(CityOf(std::move(fields)), reader.Taken())) return false;
    }
    return true;
}

bool ReadCityFile(IByteStream& file, const std::function<bool(const CityLine&)>& take) {
    return ReadCityFields(file, [&take](CityFields&& city, std::size_t) { return take(LineOf(city)); });
}

}  // namespace rlx
