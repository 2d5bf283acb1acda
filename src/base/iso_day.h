#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "base/calendar.h"

/// Days as they are kept: "2026-09-29".
namespace rlx {

std::u16string IsoDay(const Date& date);

/// Nothing when it is not exactly that form, or no day of the calendar.
std::optional<Date> ParseIsoDay(std::u16string_view text);

}  // namespace rlx
