#pragma once

#include <optional>
#include <string>

#include "base/calendar.h"

namespace rlx::cli {

/// The answer that the user gave beforehand to every Yes/No box.
enum class GivenAnswer { kAsk, kYes, kNo };

/// The options that every subcommand takes.
struct GlobalOptions {
    std::string home;             ///< application folder; empty: by the usual rules
    std::string store;            ///< device store file; empty: by the usual rules
    std::optional<DateTime> now;  ///< frozen device clock
    std::optional<int> bias;      ///< minutes, UTC = local + bias
    GivenAnswer answer = GivenAnswer::kAsk;
    bool offline = false;
    bool json = false;
};

/// "2026-11-22T21:03:04" (the seconds may be left out); nothing when it is not a date and time.
std::optional<DateTime> ParseDateTime(const std::string& text);

/// The same with leading zeros left out where one likes: "2026-1-5T7:5:0".
std::optional<DateTime> ParseInstant(const std::string& text);

/// "2026-11-22" or "2026-1-5"; nothing when it is not a date.
std::optional<Date> ParseDate(const std::string& text);

}  // namespace rlx::cli
