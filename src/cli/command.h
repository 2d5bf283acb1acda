#pragma once

#include <CLI/CLI.hpp>
#include <cstdint>
#include <functional>
#include <string>

#include "cli/answer.h"
#include "cli/session.h"

namespace rlx::cli {

/// Exit statuses of the program.
inline constexpr int kDone = 0;
inline constexpr int kFailed = 1;
inline constexpr int kWrongUsage = 2;

/// What a command does once its words are understood. Returns `kDone` or `kFailed`; on failure a message box has said
/// why.
using Action = std::function<int(CSession&, CAnswer&)>;

/// Where a command leaves its action while the command line is read. Called by the last subcommand that was named.
using SetAction = std::function<void(Action)>;

/// One subcommand: `declare` adds its options and positionals to `app` and hands over its action when it is named.
struct Command {
    const char* name;
    const char* help;
    void (*declare)(CLI::App& app, const SetAction& setAction);
};

/// Declares a subcommand of `app` that sets `action` when it is named.
CLI::App* DeclareSub(CLI::App& app, const char* name, const char* help, const SetAction& setAction, Action action);

struct IntegerRange {
    std::int64_t low = 0;
    std::int64_t high = 0;
};

/// Adds an option or positional that is a decimal number within `range`, and nothing else: no octal, no fraction, not
/// empty.
CLI::Option* AddInteger(CLI::App& app, const std::string& name, IntegerRange range,
                        std::function<void(std::int64_t)> take, const std::string& help);

/// Adds an option that is a date and time of day, as `ParseInstant` reads it.
CLI::Option* AddInstant(CLI::App& app, const std::string& name, std::function<void(const DateTime&)> take,
                        const std::string& help);

}  // namespace rlx::cli
