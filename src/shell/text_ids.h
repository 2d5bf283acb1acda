#pragma once

#include "shell/text_id.h"

/// Texts that belong to no room alone, and those of the shell: settings, folder, languages.
namespace rlx {

inline constexpr TextId kTextError = 32923;
inline constexpr TextId kTextAlreadyExists = 32945;
inline constexpr TextId kTextConfirmation = 32948;

inline constexpr TextId kTextAppName = 40000;
inline constexpr TextId kTextScreenClocks = 40001;
inline constexpr TextId kTextScreenMap = 40002;
inline constexpr TextId kTextScreenWeather = 40003;
inline constexpr TextId kTextScreenCurrencies = 40004;
inline constexpr TextId kTextScreenTools = 40005;
inline constexpr TextId kTextScreenNews = 40006;
inline constexpr TextId kTextOk = 40010;
inline constexpr TextId kTextCancel = 40011;
inline constexpr TextId kTextYes = 40012;
inline constexpr TextId kTextNo = 40013;
inline constexpr TextId kTextAdd = 40017;
inline constexpr TextId kTextDelete = 40018;
inline constexpr TextId kTextUpdate = 40020;
inline constexpr TextId kTextSearch = 40021;
inline constexpr TextId kTextNothingFound = 40022;
inline constexpr TextId kTextTip = 40023;
inline constexpr TextId kTextStoreDamaged = 40030;
inline constexpr TextId kTextStoreNotWritable = 40031;
inline constexpr TextId kTextFileNotSaved = 40032;
inline constexpr TextId kTextFileNotRead = 40033;
inline constexpr TextId kTextCopied = 40035;
inline constexpr TextId kTextUnknown = 40036;
inline constexpr TextId kTextNotAvailable = 40037;
inline constexpr TextId kTextDontAskAgain = 40038;
inline constexpr TextId kTextStoreReadOnly = 40039;
inline constexpr TextId kTextStoreNewer = 40041;
inline constexpr TextId kTextStoreForeign = 40042;
inline constexpr TextId kTextFolderNotReady = 40044;

inline constexpr TextId kTextAm = 40200;
inline constexpr TextId kTextPm = 40201;
inline constexpr TextId kTextSunrise = 40300;
inline constexpr TextId kTextSunset = 40301;

inline constexpr TextId kTextSource = 40408;
inline constexpr TextId kTextStale = 40409;

inline constexpr TextId kTextCopyResult = 40711;

inline constexpr TextId kTextWaitingForReply = 41206;
inline constexpr TextId kTextReceiving = 41207;
inline constexpr TextId kTextNoSuchFolder = 41311;

inline constexpr TextId kTextRestartForLanguage = 41400;
inline constexpr TextId kTextLanguageNotLoaded = 41401;
inline constexpr TextId kTextInstalledMark = 41402;
inline constexpr TextId kTextLanguage = 41403;
inline constexpr TextId kTextNotALanguageModule = 41404;
inline constexpr TextId kTextLanguageInstalled = 41405;
inline constexpr TextId kTextNoModulesInFolder = 41406;
inline constexpr TextId kTextChooseModuleFolder = 41407;
inline constexpr TextId kTextBuiltInLanguage = 41410;
inline constexpr TextId kTextLanguageIsInstalled = 41411;
inline constexpr TextId kTextModuleNameRefused = 41412;
inline constexpr TextId kTextLanguageListFull = 41413;
inline constexpr TextId kTextModuleNotInstalled = 41414;
inline constexpr TextId kTextModuleNotRemovable = 41415;
inline constexpr TextId kTextModuleNotRemoved = 41416;
inline constexpr TextId kTextNoSuchLanguage = 41417;
inline constexpr TextId kTextToolkitLanguage = 41418;

}  // namespace rlx
