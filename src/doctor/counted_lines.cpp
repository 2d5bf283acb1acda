#include "doctor/counted_lines.h"

#include <algorithm>

#include "base/number.h"
#include "base/text.h"
#include "doctor/text_ids.h"

namespace rlx {

namespace {

constexpr std::int64_t kMostLines = 100'000'000;

bool IsEndMark(const std::u16string& line, std::size_t field) {
    const auto fields = Split(line, u';');
    return field < fields.size() && fields[field] == u">";
}

std::u16string Count(std::size_t number) {
    return FormatInteger(static_cast<std::int64_t>(number));
}

}  // namespace

std::vector<CountedLine> ReadCountedLines(const DoctorPorts& ports, const std::filesystem::path& file,
                                          std::size_t markField, CDoctorReport& report) {
    const auto bytes = ports.files.ReadFile(file, kMaxDoctorFile);
    if (!bytes) {
        report.Add(file, 0, kTextDoctorMissing);
        return {};
    }
    std::vector<std::u16string> lines = Split(Widen(*bytes), u'\n');
    if (lines.back().empty()) lines.pop_back();
    const auto promised = ParseWholeInteger(lines.empty() ? u"" : Trim(lines.front()), 0, kMostLines);
    if (!promised) {
        report.Add(file, 1, kTextDoctorNoCount);
        return {};
    }
    std::vector<CountedLine> counted;
    for (std::size_t i = 1; i < lines.size() && !IsEndMark(lines[i], markField); ++i)
        counted.push_back({static_cast<int>(i + 1), lines[i]});
    const auto wanted = static_cast<std::size_t>(*promised);
    if (counted.size() > wanted) {
        report.Add(file, 1, kTextDoctorCount, {Count(wanted), Count(counted.size())});
        counted.resize(wanted);
    }
    return counted;
}

std::optional<std::vector<std::u16string>> FieldsOf(const CountedLine& line, std::size_t count,
                                                    const std::filesystem::path& file, CDoctorReport& report) {
    auto fields = Split(line.text, u';');
    if (fields.size() != count) {
        report.Add(file, line.number, kTextDoctorFields, {Count(count), Count(fields.size())});
        return std::nullopt;
    }
    const auto empty = std::ranges::find_if(fields, [](const auto& field) { return Trim(field).empty(); });
    if (empty == fields.end()) return fields;
    report.Add(file, line.number, kTextDoctorEmptyField, {Count(static_cast<std::size_t>(empty - fields.begin()) + 1)});
    return std::nullopt;
}

void CTwiceCheck::Look(const std::u16string& text, const std::filesystem::path& file, int line, CDoctorReport& report) {
    if (!m_seen.insert(text).second) report.Add(file, line, kTextDoctorTwice, {text});
}

}  // namespace rlx
