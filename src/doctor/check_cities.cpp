#include "base/number.h"
#include "doctor/checks.h"
#include "doctor/counted_lines.h"
#include "doctor/text_ids.h"
#include "places/city_draft.h"
#include "places/rules_date.h"
#include "places/text_ids.h"

namespace rlx {

namespace {

constexpr std::size_t kFieldCount = 11;
constexpr std::size_t kNameField = 1;

CityFields CityOf(const std::vector<std::u16string>& f) {
    return {f[0], f[1], f[2], f[3], f[4], f[5], {f[6], f[7], f[8], f[9], f[10]}};
}

}  // namespace

void CheckCities(const DoctorPorts& ports, ITimeZones& zones, CDoctorReport& report) {
    const std::filesystem::path file = ports.folder / "cities.lst";
    CTwiceCheck twice;
    for (const CountedLine& line : ReadCountedLines(ports, file, kNameField, report)) {
        const auto fields = FieldsOf(line, kFieldCount, file, report);
        if (!fields) continue;
        const CityFields city = CityOf(*fields);
        if (!ParseWholeInteger(city.gmt, -9999, 9999)) {
            report.Add(file, line.number, kTextDoctorNoNumber, {city.gmt});
            continue;
        }
        const CheckedCity checked = CheckCity(CCityDraft(city), nullptr, zones, ports.texts);
        if (checked.fault) report.Add(file, line.number, checked.fault->text);
        twice.Look(city.Place(), file, line.number, report);
    }
}

void CheckRulesDate(const DoctorPorts& ports, CDoctorReport& report) {
    const std::filesystem::path file = ports.folder / kRulesDateFile;
    if (!ports.files.IsFile(file)) return;
    const auto date = ReadRulesDate(ports.files, ports.folder);
    if (!date)
        report.Add(file, 1, kTextDoctorNoDate);
    else if (date->year < ports.today.year)
        report.Add(file, 1, kTextRulesOutdated, {FormatInteger(date->year)});
}

}  // namespace rlx
