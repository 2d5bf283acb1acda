#pragma once

#include <filesystem>
#include <optional>

#include "base/calendar.h"
#include "platform/file_system.h"

namespace rlx {

/// "cities.date" beside "cities.lst": the day for which the daylight-saving rules of the list were made, "2026-11-22"
/// and a line feed.
inline constexpr char kRulesDateFile[] = "cities.date";

/// Nothing when the file is missing or holds no date.
std::optional<Date> ReadRulesDate(IFileSystem& files, const std::filesystem::path& folder);

bool WriteRulesDate(IFileSystem& files, const std::filesystem::path& folder, const Date& day);

}  // namespace rlx
