#pragma once

#include <span>

#include "cli/command.h"

namespace rlx::cli {

/// All subcommands in the order in which the help lists them.
std::span<const Command> Commands();

void DeclareClocks(CLI::App& app, const SetAction& setAction);
void DeclareCity(CLI::App& app, const SetAction& setAction);
void DeclareTime(CLI::App& app, const SetAction& setAction);
void DeclareWeather(CLI::App& app, const SetAction& setAction);
void DeclareSettings(CLI::App& app, const SetAction& setAction);
void DeclareLang(CLI::App& app, const SetAction& setAction);
void DeclareCredits(CLI::App& app, const SetAction& setAction);

}  // namespace rlx::cli
