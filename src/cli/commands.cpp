#include "cli/commands.h"

#include <array>

namespace rlx::cli {

std::span<const Command> Commands() {
    static constexpr std::array kCommands = {
        Command{"clocks", "the home clock and the four others", DeclareClocks},
        Command{"city", "cities: show, list, find, rebuild", DeclareCity},
        Command{"time", "local time and date of a city", DeclareTime},
        Command{"sun", "sunrise, sunset and length of the day of a city", DeclareSun},
        Command{"sky", "where the sun stands at an instant", DeclareSky},
        Command{"map", "the night side of the world map", DeclareMap},
        Command{"weather", "the stored forecasts, and fetching new ones", DeclareWeather},
        Command{"settings", "the device's settings: get, set, list", DeclareSettings},
        Command{"skin", "skins: show, check, list, use", DeclareSkin},
        Command{"lang", "languages and their texts", DeclareLang},
        Command{"tip", "tip and tax on a bill", DeclareTip},
        Command{"pack", "packing lists: show, add, tick, delete", DeclarePack},
        Command{"feed", "the feed server: string, post", DeclareFeed},
        Command{"rates", "currency rates: update, convert", DeclareRates},
        Command{"news", "the news page: fetch, show", DeclareNews},
        Command{"convert", "convert a value between units", DeclareConvert},
        Command{"units", "units of the converter: list, add, delete", DeclareUnits},
        Command{"dial", "dialing and area codes", DeclareDial},
        Command{"sizes", "clothing sizes of other countries", DeclareSizes},
        Command{"today", "a summary for a status bar, and what it shows", DeclareToday},
        Command{"credits", "where the data comes from", DeclareCredits},
    };
    return kCommands;
}

}  // namespace rlx::cli
