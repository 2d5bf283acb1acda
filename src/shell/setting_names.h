#pragma once

#include <string_view>

#include "platform/registry.h"

/// The keys of the device's settings and the names of their values. Numbers are DWORDs unless a comment says "text".
namespace rlx {

namespace keys {
inline constexpr std::u16string_view kRoamlytix = u"Roamlytix";
inline constexpr std::u16string_view kWorldClock = u"Roamlytix\\wrldclk";
inline constexpr std::u16string_view kMap = u"Roamlytix\\map";
inline constexpr std::u16string_view kWeather = u"Roamlytix\\weather";
inline constexpr std::u16string_view kCurrencies = u"Roamlytix\\currencies";
inline constexpr std::u16string_view kConverter = u"Roamlytix\\converter";
inline constexpr std::u16string_view kAlarms = u"Roamlytix\\alarms";
inline constexpr std::u16string_view kOwner = u"ControlPanel\\Owner";  ///< the only one below the current user
}  // namespace keys

/// The root below which a key lies.
constexpr RegistryRoot RootOf(std::u16string_view key) {
    return key == keys::kOwner ? RegistryRoot::kCurrentUser : RegistryRoot::kLocalMachine;
}

/// Values of `keys::kRoamlytix`.
namespace names {
inline constexpr std::u16string_view kCurrentTab = u"CurTab";      ///< index of the screen shown last
inline constexpr std::u16string_view kTwelveHour = u"twelvehour";  ///< 1: clocks in 12-hour form
inline constexpr std::u16string_view kClocksTip = u"clktip";       ///< 1: the tip was shown
inline constexpr std::u16string_view kMapTip = u"maptip";          ///< 1: the tip was shown
inline constexpr std::u16string_view kWeatherTip = u"weattip";     ///< 1 or 2
inline constexpr std::u16string_view kFahrenheit = u"fara";        ///< 1: Fahrenheit, 0: Celsius
inline constexpr std::u16string_view kLanguage = u"lang";          ///< list position of the language; 0: built in
inline constexpr std::u16string_view kSkin = u"skin";              ///< text: the selected skin file, or "default"
inline constexpr std::u16string_view kSkinsFolder = u"skinsdir";   ///< text: the folder of skins looked into last
inline constexpr std::u16string_view kHomeName = u"hlname";        ///< text: the home location's name
inline constexpr std::u16string_view kSession = u"RXSI";           ///< text: the feed server's session
inline constexpr std::u16string_view kNewsId = u"newsid";          ///< text: the latest news seen; "0": none
inline constexpr std::u16string_view kNewNews = u"newnews";        ///< 1: there is news not yet fetched
inline constexpr std::u16string_view kNewsRead = u"newsread";      ///< 1: the fetched page has been shown
inline constexpr std::u16string_view kNewsDate = u"newsdate";      ///< text: day of the last fetch, "2026-09-29"
inline constexpr std::u16string_view kNewsSource = u"newsfrom";    ///< text: the host that the page came from
inline constexpr std::u16string_view kTodayCities = u"todaynbcs";  ///< number of clocks on the home screen
inline constexpr std::u16string_view kTodayRates = u"todayscur";   ///< 1: rates on the home screen
inline constexpr std::u16string_view kWindow = u"window";          ///< bytes: place and size of the window
inline constexpr std::u16string_view kToolPage = u"toolpage";      ///< page of Tools shown last, from 1; 0: the list

/// Of `keys::kRoamlytix`: the year in which the person was told that the daylight-saving rules are older.
inline constexpr std::u16string_view kRulesTold = u"rulestold";

/// Text of `keys::kRoamlytix`: the `GuidText` of each connection that needs no confirmation, each followed by ";".
inline constexpr std::u16string_view kAgreedConnections = u"connok";

/// Values of `keys::kWorldClock`: `CityIndex` of the home city and the four others.
inline constexpr std::u16string_view kHomeClock = u"clock";
inline constexpr std::u16string_view kClocks[4] = {u"clock1", u"clock2", u"clock3", u"clock4"};
inline constexpr std::u16string_view kSyncZone = u"syncltz";  ///< not 0: the device clock follows the device's zone

/// Text of `keys::kWorldClock`, there while "cities.lst" is being changed: "old place;new place;" for each city
/// renamed.
inline constexpr std::u16string_view kCityMoves = u"citymoves";

/// Values of `keys::kMap`.
inline constexpr std::u16string_view kMapClock = u"mapclock";  ///< which of the five clocks the map shows
inline constexpr std::u16string_view kShowCities = u"showcs";  ///< 1: city squares are shown

/// Values of `keys::kWeather`.
inline constexpr std::u16string_view kWeatherPlaces[4] = {u"wetp", u"wetp2", u"wetp3", u"wetp4"};
inline constexpr std::u16string_view kDayByDay = u"daybyday";  ///< 1: the day-by-day view
inline constexpr std::u16string_view kForecast = u"fore";
inline constexpr std::u16string_view kIconFolder = u"icondir";  ///< text: folder of the icon set

/// Values of `keys::kCurrencies`.
inline constexpr std::u16string_view kPairs[3] = {u"curp", u"curp2", u"curp3"};
inline constexpr std::u16string_view kRatesDate = u"ratesdate";    ///< text: day of the last update, "2026-09-29"
inline constexpr std::u16string_view kRatesSource = u"ratesfrom";  ///< text: the host that it came from

/// Value of `keys::kConverter`; text: a line for each pair of units used lately, newest first: category, from and to
/// with a tab between them.
inline constexpr std::u16string_view kRecentPairs = u"recent";

/// Values of `keys::kAlarms`, one of each for every reminder; all texts.
inline constexpr std::u16string_view kAlarmTimes[5] = {u"clock", u"clock1", u"clock2", u"clock3", u"clock4"};
inline constexpr std::u16string_view kAlarmDates[5] = {u"date", u"date1", u"date2", u"date3", u"date4"};
inline constexpr std::u16string_view kAlarmTexts[5] = {u"desc", u"desc1", u"desc2", u"desc3", u"desc4"};
inline constexpr std::u16string_view kAlarmCities[5] = {u"city", u"city1", u"city2", u"city3", u"city4"};
inline constexpr std::u16string_view kAlarmMarks[5] = {u"told", u"told1", u"told2", u"told3", u"told4"};

/// Value of `keys::kOwner`: the device owner's name; text.
inline constexpr std::u16string_view kOwnerName = u"Owner";
}  // namespace names

}  // namespace rlx
