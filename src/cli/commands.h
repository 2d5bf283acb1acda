#pragma once

#include <span>

#include "cli/command.h"

namespace rlx::cli {

/// All subcommands in the order in which the help lists them.
std::span<const Command> Commands();

void DeclareClocks(CLI::App& app, const SetAction& setAction);
void DeclareCity(CLI::App& app, const SetAction& setAction);
void DeclareTime(CLI::App& app, const SetAction& setAction);
void DeclareSun(CLI::App& app, const SetAction& setAction);
void DeclareSky(CLI::App& app, const SetAction& setAction);
void DeclareMap(CLI::App& app, const SetAction& setAction);
void DeclareWeather(CLI::App& app, const SetAction& setAction);
void DeclareSettings(CLI::App& app, const SetAction& setAction);
void DeclareSkin(CLI::App& app, const SetAction& setAction);
void DeclareLang(CLI::App& app, const SetAction& setAction);
void DeclareTip(CLI::App& app, const SetAction& setAction);
void DeclarePack(CLI::App& app, const SetAction& setAction);
void DeclareFeed(CLI::App& app, const SetAction& setAction);
void DeclareRates(CLI::App& app, const SetAction& setAction);
void DeclareNews(CLI::App& app, const SetAction& setAction);
void DeclareConvert(CLI::App& app, const SetAction& setAction);
void DeclareUnits(CLI::App& app, const SetAction& setAction);
void DeclareDial(CLI::App& app, const SetAction& setAction);
void DeclareSizes(CLI::App& app, const SetAction& setAction);
void DeclareToday(CLI::App& app, const SetAction& setAction);
void DeclareCredits(CLI::App& app, const SetAction& setAction);

}  // namespace rlx::cli
