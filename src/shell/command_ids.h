#pragma once

/// The numbers of menus and menu entries. The resource compiler reads them from here, so each stands once:
/// "kName = number," on a line of its own. A number is never used for another command.
namespace rlx {

enum MenuId : int {
    kMenuMain = 100,
    kMenuClock = 101,    // of one clock: long tap or right click
    kMenuPacking = 102,  // of the packing list page
    kMenuWeather = 104,  // of one place: long tap or right click
};

enum CommandId : int {
    kCommandHomeCity = 200,
    kCommandEditCities = 201,
    kCommandRefreshRules = 202,
    kCommandReminders = 203,
    kCommandUpdateRates = 210,
    kCommandUpdateWeather = 211,
    kCommandFetchNews = 212,
    kCommandShowNews = 213,
    kCommandOwnerName = 214,
    kCommandTwelveHour = 220,
    kCommandDeviceTimeZone = 221,
    kCommandFahrenheit = 222,
    kCommandShowCities = 223,
    kCommandTodayOptions = 224,
    kCommandLanguage = 225,
    kCommandInstallLanguages = 226,
    kCommandChooseSkin = 227,
    kCommandEditSkin = 228,
    kCommandFullScreen = 229,
    kCommandCredits = 240,
    kCommandAbout = 241,
    kCommandExit = 242,

    kCommandClockInformation = 260,
    kCommandClockCity = 261,
    kCommandClockAsHome = 262,
    kCommandClockReminder = 263,

    kCommandWeatherPlace = 280,
    kCommandWeatherDays = 281,

    kCommandAddCategory = 300,
    kCommandAddList = 301,
    kCommandAddItems = 302,
    kCommandDeleteCategory = 303,
    kCommandDeleteList = 304,
    kCommandDeleteItem = 305,
    kCommandDeleteAllItems = 306,
    kCommandShowAll = 307,
    kCommandShowChecked = 308,
    kCommandShowUnchecked = 309,
    kCommandUncheckAll = 310,
};

}  // namespace rlx
