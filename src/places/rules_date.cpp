#include "places/rules_date.h"

#include "base/iso_day.h"
#include "base/text.h"

namespace rlx {

std::optional<Date> ReadRulesDate(IFileSystem& files, const std::filesystem::path& folder) {
    constexpr std::size_t kLimit = 64;
    const auto bytes = files.ReadFile(folder / kRulesDateFile, kLimit);
    return bytes ? ParseIsoDay(Trim(Widen(*bytes))) : std::nullopt;
}

bool WriteRulesDate(IFileSystem& files, const std::filesystem::path& folder, const Date& day) {
    return files.WriteFile(folder / kRulesDateFile, Narrow(IsoDay(day)) + '\n');
}

}  // namespace rlx
