#pragma once

#include <optional>
#include <set>
#include <string>
#include <vector>

#include "doctor/doctor_report.h"

namespace rlx {

/// A line of a list, with its number in the file.
struct CountedLine {
    int number = 0;
    std::u16string text;  ///< without its line end
};

/// The lines of a file whose first line is their number, up to that number or an end mark: a line whose field
/// `markField` (fields are ended by ";") is ">". Reports a file that cannot be read, a first line that is no number,
/// and lines that are there and not counted.
std::vector<CountedLine> ReadCountedLines(const DoctorPorts& ports, const std::filesystem::path& file,
                                          std::size_t markField, CDoctorReport& report);

/// The fields of a line; nothing, after a report, when their number is not `count` or one of them is empty.
std::optional<std::vector<std::u16string>> FieldsOf(const CountedLine& line, std::size_t count,
                                                    const std::filesystem::path& file, CDoctorReport& report);

/// Reports the second of two equal texts.
class CTwiceCheck {
public:
    void Look(const std::u16string& text, const std::filesystem::path& file, int line, CDoctorReport& report);

private:
    std::set<std::u16string> m_seen;
};

}  // namespace rlx
