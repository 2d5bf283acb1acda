#include "places/city_list.h"

#include <string_view>
#include <utility>

#include "base/text.h"

namespace rlx {

namespace {

/// A field that is empty needs the delimiter twice: a reader skips one that stands where a field begins.
void Append(std::string& bytes, const std::u16string& field, char delimiter) {
    bytes += field.empty() ? std::string(1, delimiter) : Narrow(field);
    bytes += delimiter;
}

void Append(std::string& bytes, const CityFields& city) {
    for (const auto* field : {&city.zone, &city.name, &city.country, &city.longitude, &city.latitude, &city.gmt,
                              &city.dst[0], &city.dst[1], &city.dst[2], &city.dst[3]}) {
        Append(bytes, *field, ';');
    }
    Append(bytes, city.dst[4], '\n');
}

}  // namespace

CityList ParseCityList(const std::string& bytes) {
    CityList list;
    std::size_t end = bytes.find('\n');
    end = end == std::string::npos ? bytes.size() : end + 1;
    CMemoryStream file(bytes);
    ReadCityFields(file, [&](CityFields&& city, std::size_t at) {
        list.cities.push_back(std::move(city));
        end = at;
        return true;
    });
    list.rest = bytes.substr(end);
    return list;
}

std::optional<std::string> CityListBytes(const CityList& list) {
    std::string bytes = std::to_string(list.cities.size()) + '\n';
    for (const CityFields& city : list.cities)
        Append(bytes, city);
    bytes += list.rest;
    if (ParseCityList(bytes) != list) return std::nullopt;
    return bytes;
}

std::optional<CityList> ReadCityList(IFileSystem& files, const std::filesystem::path& file) {
    auto bytes = files.ReadFile(file, kMaxCityFile);
    if (!bytes) return std::nullopt;
    return ParseCityList(*bytes);
}

}  // namespace rlx
