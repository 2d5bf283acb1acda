#include <set>

#include "base/text.h"
#include "doctor/checks.h"
#include "doctor/counted_lines.h"
#include "doctor/text_ids.h"
#include "places/city_list.h"

namespace rlx {

namespace {

constexpr std::size_t kFieldCount = 3;
constexpr std::size_t kNameField = 0;

std::set<std::u16string> PlacesOfCities(const DoctorPorts& ports) {
    std::set<std::u16string> places;
    if (const auto list = ReadCityList(ports.files, ports.folder / "cities.lst")) {
        for (const CityFields& city : list->cities)
            places.insert(city.Place());
    }
    return places;
}

}  // namespace

void CheckWeatherPlaces(const DoctorPorts& ports, CDoctorReport& report) {
    const std::filesystem::path file = ports.folder / "cities.wet";
    const auto places = PlacesOfCities(ports);
    CTwiceCheck twice;
    CTwiceCheck feedTwice;
    for (const CountedLine& line : ReadCountedLines(ports, file, kNameField, report)) {
        const auto fields = FieldsOf(line, kFieldCount, file, report);
        if (!fields) continue;
        const std::u16string place = fields->at(0) + u":" + fields->at(1);
        const std::u16string feedName = Trim(fields->at(2));
        twice.Look(place, file, line.number, report);
        feedTwice.Look(feedName, file, line.number, report);
        if (!places.empty() && !places.contains(place)) report.Add(file, line.number, kTextDoctorNoCity, {place});
        if (feedName.find_first_of(u"&'#") != std::u16string::npos)
            report.Add(file, line.number, kTextDoctorFeedName, {feedName});
    }
}

}  // namespace rlx
