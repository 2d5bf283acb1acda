#include <algorithm>
#include <cmath>

#include "base/number.h"
#include "base/read_token.h"
#include "base/text.h"
#include "doctor/checks.h"
#include "doctor/counted_lines.h"
#include "doctor/text_ids.h"
#include "feeds/rates_list.h"

namespace rlx {

namespace {

bool IsRate(const std::u16string& text) {
    const double rate = ParseNumber(text);
    return std::isfinite(rate) && rate > 0 && text.find_first_not_of(u"0123456789.") == std::u16string::npos;
}

int LineAt(const std::string& bytes, std::size_t at) {
    return 1 + static_cast<int>(std::count(bytes.begin(), bytes.begin() + static_cast<std::ptrdiff_t>(at), '\n'));
}

/// Nothing stands between two entries, so a line break shows up in the code of the next one.
void CheckEntry(const CurrencyEntry& entry, const std::filesystem::path& file, int line, CDoctorReport& report) {
    if (entry.code.empty() || entry.code.find_first_of(u"\r\n ") != std::u16string::npos)
        report.Add(file, line, kTextDoctorCode, {Trim(entry.code)});
    if (!IsRate(entry.rate)) report.Add(file, line, kTextDoctorRate, {entry.name});
}

}  // namespace

void CheckRates(const DoctorPorts& ports, CDoctorReport& report) {
    const std::filesystem::path date = ports.folder / kRatesDateFile;
    if (ports.files.IsFile(date) && !ShippedRatesDate(ports.files, ports.folder))
        report.Add(date, 1, kTextDoctorNoDate);
    const std::filesystem::path file = ports.folder / kRatesListFile;
    const auto bytes = ports.files.ReadFile(file, kMaxDoctorFile);
    if (!bytes) return report.Add(file, 0, kTextDoctorMissing);
    CMemoryStream stream(*bytes);
    CByteReader reader(stream);
    const auto promised = ParseWholeInteger(Trim(ReadToken(reader, '\n')), 0, kMaxListEntries);
    if (!promised) return report.Add(file, 1, kTextDoctorNoCount);
    CTwiceCheck codes;
    CTwiceCheck names;
    std::int64_t found = 0;
    for (; found < *promised; ++found) {
        const int line = LineAt(*bytes, reader.Taken());
        CurrencyEntry entry{ReadToken(reader, '_'), ReadToken(reader, '_'), ReadToken(reader, '#')};
        if (entry.name.empty()) break;
        CheckEntry(entry, file, line, report);
        codes.Look(entry.code, file, line, report);
        names.Look(entry.name, file, line, report);
    }
    if (found < *promised) report.Add(file, 1, kTextDoctorCount, {FormatInteger(*promised), FormatInteger(found)});
}

}  // namespace rlx
