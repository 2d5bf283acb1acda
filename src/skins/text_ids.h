#pragma once

#include "shell/text_id.h"

/// Skins: their faults, their sections, and what each key colours or names.
namespace rlx {

inline constexpr TextId kTextSkinNotFound = 41300;
inline constexpr TextId kTextDefaultSkinNotFound = 41301;
inline constexpr TextId kTextNoSkins = 41302;
inline constexpr TextId kTextSkinInvalid = 41303;
inline constexpr TextId kTextDefaultIconSet = 41304;
inline constexpr TextId kTextInvalidMark = 41306;
inline constexpr TextId kTextSkinTooLong = 41307;
inline constexpr TextId kTextSkinComplete = 41309;
inline constexpr TextId kTextSkinPathRefused = 41310;
inline constexpr TextId kTextSkinFileNotOpened = 41320;
inline constexpr TextId kTextSkinSectionMissing = 41321;
inline constexpr TextId kTextSkinKeyMissing = 41322;
inline constexpr TextId kTextSkinNotAColour = 41323;
inline constexpr TextId kTextSkinNoBackslash = 41324;
inline constexpr TextId kTextSkinLeavesFolder = 41325;
inline constexpr TextId kTextSkinFolderMissing = 41326;
inline constexpr TextId kTextSkinFileMissing = 41327;
inline constexpr TextId kTextSkinBadValue = 41328;
inline constexpr TextId kTextSkinLinesMissing = 41329;
inline constexpr TextId kTextSkinSectionGeneral = 41342;
inline constexpr TextId kTextSkinSectionClocks = 41343;
inline constexpr TextId kTextSkinSectionWeather = 41344;
inline constexpr TextId kTextSkinSectionMap = 41345;
inline constexpr TextId kTextSkinSectionCurrency = 41346;
inline constexpr TextId kTextSkinSectionTools = 41347;
inline constexpr TextId kTextSkinNoPictures = 41350;
inline constexpr TextId kTextSkinsFolderTitle = 41351;
inline constexpr TextId kTextSkinNoLine = 41352;
inline constexpr TextId kTextPreview = 41353;
inline constexpr TextId kTextColourPlane = 41354;
inline constexpr TextId kTextSkinEditTitle = 41355;

// What each key of a skin colours or names: 41700 and the number of its row in skin_keys.inc.
inline constexpr TextId kTextSkinKeyGeneralTBC = 41704;
inline constexpr TextId kTextSkinKeyGeneralPC = 41705;
inline constexpr TextId kTextSkinKeyGeneralPTC = 41706;
inline constexpr TextId kTextSkinKeyGeneralIF = 41707;
inline constexpr TextId kTextSkinKeyClocksBP = 41708;
inline constexpr TextId kTextSkinKeyClocksBL = 41709;
inline constexpr TextId kTextSkinKeyClocksBS = 41710;
inline constexpr TextId kTextSkinKeyClocksCMDC = 41711;
inline constexpr TextId kTextSkinKeyClocksCMD = 41712;
inline constexpr TextId kTextSkinKeyClocksCMCN = 41713;
inline constexpr TextId kTextSkinKeyClocksCMSC = 41714;
inline constexpr TextId kTextSkinKeyClocksCMAC = 41715;
inline constexpr TextId kTextSkinKeyClocksCODC = 41716;
inline constexpr TextId kTextSkinKeyClocksCOD = 41717;
inline constexpr TextId kTextSkinKeyClocksCOCN = 41718;
inline constexpr TextId kTextSkinKeyClocksCOAC = 41719;
inline constexpr TextId kTextSkinKeyWeatherBP = 41720;
inline constexpr TextId kTextSkinKeyWeatherBL = 41721;
inline constexpr TextId kTextSkinKeyWeatherBS = 41722;
inline constexpr TextId kTextSkinKeyWeatherWICOF = 41723;
inline constexpr TextId kTextSkinKeyWeatherCBBC = 41724;
inline constexpr TextId kTextSkinKeyWeatherCBTC = 41725;
inline constexpr TextId kTextSkinKeyWeatherFBBC = 41726;
inline constexpr TextId kTextSkinKeyWeatherFBTC = 41727;
inline constexpr TextId kTextSkinKeyWeatherSATC = 41728;
inline constexpr TextId kTextSkinKeyWeatherDAYSC = 41729;
inline constexpr TextId kTextSkinKeyWeatherCNSC = 41730;
inline constexpr TextId kTextSkinKeyWeatherMOREC = 41731;
inline constexpr TextId kTextSkinKeyMapBP = 41732;
inline constexpr TextId kTextSkinKeyMapBL = 41733;
inline constexpr TextId kTextSkinKeyMapBS = 41734;
inline constexpr TextId kTextSkinKeyMapCNC = 41736;
inline constexpr TextId kTextSkinKeyMapDCC = 41737;
inline constexpr TextId kTextSkinKeyMapACC = 41738;
inline constexpr TextId kTextSkinKeyMapDC = 41739;
inline constexpr TextId kTextSkinKeyMapDLC = 41740;
inline constexpr TextId kTextSkinKeyMapRSTBC = 41741;
inline constexpr TextId kTextSkinKeyMapRSTTC = 41742;
inline constexpr TextId kTextSkinKeyMapRSIBC = 41743;
inline constexpr TextId kTextSkinKeyMapRSITC = 41744;
inline constexpr TextId kTextSkinKeyMapSHADCLR = 41745;
inline constexpr TextId kTextSkinKeyCurrencySumC = 41746;
inline constexpr TextId kTextSkinKeyCurrencySTC = 41747;
inline constexpr TextId kTextSkinKeyCurrencyPanC = 41748;
inline constexpr TextId kTextSkinKeyCurrencyPCEC = 41749;
inline constexpr TextId kTextSkinKeyCurrencyPBC = 41750;
inline constexpr TextId kTextSkinKeyCurrencyUPDC = 41751;
inline constexpr TextId kTextSkinKeyCurrencyBKC = 41752;
inline constexpr TextId kTextSkinKeyToolsPCC = 41754;
inline constexpr TextId kTextSkinKeyToolsPCTC = 41755;
inline constexpr TextId kTextSkinKeyToolsPBCC = 41756;
inline constexpr TextId kTextSkinKeyToolsTLC = 41757;
inline constexpr TextId kTextSkinKeyToolsPCD = 41759;
inline constexpr TextId kTextSkinKeyToolsPCTD = 41760;
inline constexpr TextId kTextSkinKeyToolsBS = 41761;
inline constexpr TextId kTextSkinKeyToolsPCS = 41762;
inline constexpr TextId kTextSkinKeyToolsPBCS = 41763;
inline constexpr TextId kTextSkinKeyToolsTC1S = 41764;
inline constexpr TextId kTextSkinKeyToolsTC2S = 41765;
inline constexpr TextId kTextSkinKeyToolsTTCS = 41766;
inline constexpr TextId kTextSkinKeyToolsBP = 41767;
inline constexpr TextId kTextSkinKeyToolsPCP = 41768;
inline constexpr TextId kTextSkinKeyToolsPBCP = 41769;

}  // namespace rlx
