#pragma once

#include "shell/text_id.h"

/// Feed requests and what becomes of them.
namespace rlx {

inline constexpr TextId kTextCannotUpdate = 32866;
inline constexpr TextId kTextLastUpdate = 32924;
inline constexpr TextId kTextUpdatedShort = 32925;
inline constexpr TextId kTextSyncFailed = 33014;
inline constexpr TextId kTextServerUrlError = 33026;
inline constexpr TextId kTextAccessDenied = 33027;
inline constexpr TextId kTextServerError = 33028;
inline constexpr TextId kTextTryAgainLater = 33029;
inline constexpr TextId kTextContactSupport = 33031;
inline constexpr TextId kTextNoNewLocation = 33032;
inline constexpr TextId kTextRedirectedUrlError = 33033;
inline constexpr TextId kTextNotEnoughMemory = 33034;
inline constexpr TextId kTextInvalidRequest = 33057;
inline constexpr TextId kTextCityNotAvailable = 33058;
inline constexpr TextId kTextNoUpdates = 33133;
inline constexpr TextId kTextCannotConnect = 33135;
inline constexpr TextId kTextMoreInformation = 33136;
inline constexpr TextId kTextSetActiveConnection = 33152;
inline constexpr TextId kTextConfigureInternet = 33153;
inline constexpr TextId kTextYouHaveNews = 33160;

inline constexpr TextId kTextConnectionBefore = 41200;
inline constexpr TextId kTextConnectionAfter = 41201;
inline constexpr TextId kTextDontAskForConnection = 41210;
inline constexpr TextId kTextFeedServerMissing = 41211;
inline constexpr TextId kTextLoopbackNetwork = 41220;
inline constexpr TextId kTextRatesNotSaved = 41221;
inline constexpr TextId kTextNewsNotSaved = 41222;
inline constexpr TextId kTextFetchingNews = 41223;

}  // namespace rlx
