#include "places/city_file.h"

#include <array>

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

CityLine LineOf(const Fields& f) {
    return {f[1] + u":" + f[2], f[3] + u":" + f[4], f[5], f[6] + u":" + f[7] + u":" + f[8] + u":" + f[9] + u":" + f[10],
            f[0]};
}

}  // namespace

bool ReadCityFile(IByteStream& file, const std::function<bool(const CityLine&)>& take) {
    CByteReader reader(file);
    const std::int32_t count = ParseInteger(ReadToken(reader, '\n'));
    for (std::int32_t line = 0; line < count && !reader.AtEnd(); ++line) {
        Fields fields;
        if (!ReadFields(reader, fields)) break;
        const bool cutShort = reader.AtEnd();
        fields[kLastField] = ReadToken(reader, '\n');
        if (cutShort && fields[1].empty()) break;
        if (!take(LineOf(fields))) return false;
    }
    return true;
}

}  // namespace rlx
