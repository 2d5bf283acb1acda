#pragma once

#include <filesystem>
#include <initializer_list>
#include <string>
#include <string_view>
#include <vector>

#include "base/calendar.h"
#include "platform/file_system.h"
#include "shell/text_id.h"
#include "shell/texts.h"

namespace rlx {

/// One thing that is wrong with a file.
struct DoctorFault {
    std::u16string file;  ///< below the application folder with "/", or the whole path of a file elsewhere
    int line = 0;         ///< counted from 1; 0 for the file as a whole
    std::u16string text;  ///< a sentence that says what is wrong

    friend bool operator==(const DoctorFault&, const DoctorFault&) = default;
};

/// Collects what the checks find, in their order.
class CDoctorReport {
public:
    CDoctorReport(std::filesystem::path folder, const ITexts& texts);

    void Add(const std::filesystem::path& file, int line, std::u16string text);

    /// The text of that number with its marks filled in.
    void Add(const std::filesystem::path& file, int line, TextId text,
             std::initializer_list<std::u16string_view> values = {});

    const std::vector<DoctorFault>& Faults() const { return m_faults; }

private:
    std::filesystem::path m_folder;
    const ITexts& m_texts;
    std::vector<DoctorFault> m_faults;
};

/// What every check needs. References must outlive the checks.
struct DoctorPorts {
    IFileSystem& files;
    const ITexts& texts;
    std::filesystem::path folder;  ///< the application folder
    Date today;                    ///< of the device
};

/// Files of lists that are larger than this are not looked at; no list comes near it.
inline constexpr std::size_t kMaxDoctorFile = std::size_t{256} * 1024 * 1024;

}  // namespace rlx
