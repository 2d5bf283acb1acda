#pragma once

/// The numbers of the string table, resources/English.rc. A number is never used for another text.
namespace rlx {

enum TextId : int {
    // Numbers that are part of the system's contract.
    kTextCannotUpdate = 32866,
    kTextBelowAbsoluteZero = 32915,
    kTextCategoryAreas = 32916,
    kTextCategoryLengths = 32917,
    kTextCategoryPressures = 32918,
    kTextCategorySpeeds = 32919,
    kTextCategoryTemperatures = 32920,
    kTextCategoryVolumes = 32921,
    kTextCategoryWeights = 32922,
    kTextError = 32923,
    kTextLastUpdate = 32924,
    kTextUpdatedShort = 32925,
    kTextUnitBefore = 32944,
    kTextAlreadyExists = 32945,
    kTextDeleteBefore = 32946,
    kTextUnitAfter = 32947,
    kTextConfirmation = 32948,
    kTextSyncFailed = 33014,
    kTextServerUrlError = 33026,
    kTextAccessDenied = 33027,
    kTextServerError = 33028,
    kTextTryAgainLater = 33029,
    kTextContactSupport = 33031,
    kTextNoNewLocation = 33032,
    kTextRedirectedUrlError = 33033,
    kTextNotEnoughMemory = 33034,
    kTextInvalidRequest = 33057,
    kTextCityNotAvailable = 33058,
    kTextShowCurrencyRates = 33128,
    kTextNoUpdates = 33133,
    kTextCannotConnect = 33135,
    kTextMoreInformation = 33136,
    kTextSetActiveConnection = 33152,
    kTextConfigureInternet = 33153,
    kTextYouHaveNews = 33160,

    // Ours. One stretch of a hundred for each room of the house, so that rooms can grow side by side.
    kTextAppName = 40000,             // 40000: shell and the application as a whole
    kTextCitiesFileNotFound = 40100,  // 40100: places
    kTextSunday = 40110,              // 40110 to 40116: "Sun" to "Sat"
    // 40200: clocks   40300: map and sun   40400: weather   40500: currency   40600: tools frame and shared pages
    // 40700: converter   40800: dialing   40900: clothing   41000: packing   41100: tip and tax
    kTextConnectionBefore = 41200,  // 41200: news and feeds
    kTextConnectionAfter = 41201,
    kTextDontAskAgain = 41202,
    kTextLoopbackNetwork = 41203,
    kTextNewsNotSaved = 41210,
    kTextNoNews = 41211,
    kTextRatesNotSaved = 41212,
    // 41300: skins   41400: languages   41500: today   41600: reminders
    // 42000: command line   43000: feed server   44000: doctor
};

}  // namespace rlx
