#include "doctor/doctor_report.h"

#include <utility>

#include "base/text.h"
#include "shell/fill_text.h"

namespace rlx {

CDoctorReport::CDoctorReport(std::filesystem::path folder, const ITexts& texts)
    : m_folder(std::move(folder)), m_texts(texts) {}

void CDoctorReport::Add(const std::filesystem::path& file, int line, std::u16string text) {
    const std::filesystem::path below = file.lexically_relative(m_folder);
    const bool outside = below.empty() || *below.begin() == "..";
    m_faults.push_back({FromUtf8((outside ? file : below).generic_string()), line, std::move(text)});
}

void CDoctorReport::Add(const std::filesystem::path& file, int line, TextId text,
                        std::initializer_list<std::u16string_view> values) {
    Add(file, line, FillText(m_texts.Text(text), values));
}

}  // namespace rlx
