#include "cli/commands.h"

#include <array>

namespace rlx::cli {

std::span<const Command> Commands() {
    static constexpr std::array kCommands = {
        Command{"clocks", "the home clock and the four others", DeclareClocks},
        Command{"city", "cities: show, list, find, rebuild", DeclareCity},
        Command{"time", "local time and date of a city", DeclareTime},
        Command{"weather", "the stored forecasts, and fetching new ones", DeclareWeather},
        Command{"settings", "the device's settings: get, set, list", DeclareSettings},
        Command{"lang", "languages and their texts", DeclareLang},
        Command{"credits", "where the data comes from", DeclareCredits},
    };
    return kCommands;
}

}  // namespace rlx::cli
