#pragma once

#include "shell/text_id.h"

/// Cities, dates, and what a city's clock says beside the home clock.
namespace rlx {

inline constexpr TextId kTextCitiesFileNotFound = 40100;
inline constexpr TextId kTextSunday = 40110;
inline constexpr TextId kTextMonday = 40111;
inline constexpr TextId kTextTuesday = 40112;
inline constexpr TextId kTextWednesday = 40113;
inline constexpr TextId kTextThursday = 40114;
inline constexpr TextId kTextFriday = 40115;
inline constexpr TextId kTextSaturday = 40116;
inline constexpr TextId kTextCityInformation = 40120;
inline constexpr TextId kTextCity = 40121;
inline constexpr TextId kTextCountry = 40122;
inline constexpr TextId kTextDaylightSaving = 40123;
inline constexpr TextId kTextNeverObserving = 40124;
inline constexpr TextId kTextObservingNow = 40125;
inline constexpr TextId kTextNotObservingNow = 40126;
inline constexpr TextId kTextDstStartEnd = 40127;
inline constexpr TextId kTextLongSunday = 40130;
inline constexpr TextId kTextLongMonday = 40131;
inline constexpr TextId kTextLongTuesday = 40132;
inline constexpr TextId kTextLongWednesday = 40133;
inline constexpr TextId kTextLongThursday = 40134;
inline constexpr TextId kTextLongFriday = 40135;
inline constexpr TextId kTextLongSaturday = 40136;
inline constexpr TextId kTextJanuary = 40140;
inline constexpr TextId kTextFebruary = 40141;
inline constexpr TextId kTextMarch = 40142;
inline constexpr TextId kTextApril = 40143;
inline constexpr TextId kTextMay = 40144;
inline constexpr TextId kTextJune = 40145;
inline constexpr TextId kTextJuly = 40146;
inline constexpr TextId kTextAugust = 40147;
inline constexpr TextId kTextSeptember = 40148;
inline constexpr TextId kTextOctober = 40149;
inline constexpr TextId kTextNovember = 40150;
inline constexpr TextId kTextDecember = 40151;
inline constexpr TextId kTextShortJanuary = 40152;
inline constexpr TextId kTextShortFebruary = 40153;
inline constexpr TextId kTextShortMarch = 40154;
inline constexpr TextId kTextShortApril = 40155;
inline constexpr TextId kTextShortMay = 40156;
inline constexpr TextId kTextShortJune = 40157;
inline constexpr TextId kTextShortJuly = 40158;
inline constexpr TextId kTextShortAugust = 40159;
inline constexpr TextId kTextShortSeptember = 40160;
inline constexpr TextId kTextShortOctober = 40161;
inline constexpr TextId kTextShortNovember = 40162;
inline constexpr TextId kTextShortDecember = 40163;
inline constexpr TextId kTextYesterday = 40164;
inline constexpr TextId kTextToday = 40165;
inline constexpr TextId kTextTomorrow = 40166;
inline constexpr TextId kTextAheadOfHome = 40167;
inline constexpr TextId kTextBehindHome = 40168;
inline constexpr TextId kTextSameAsHome = 40169;
inline constexpr TextId kTextChooseHomeCity = 40170;
inline constexpr TextId kTextChooseClockCity = 40171;
inline constexpr TextId kTextCitySearchHint = 40172;
inline constexpr TextId kTextRulesOutdated = 40175;
inline constexpr TextId kTextCityGone = 40176;
inline constexpr TextId kTextRulesRefreshed = 40177;
inline constexpr TextId kTextRulesKept = 40178;
inline constexpr TextId kTextNoZoneData = 40179;
inline constexpr TextId kTextCityListFaulty = 40180;
inline constexpr TextId kTextCityNameMissing = 40181;
inline constexpr TextId kTextCountryMissing = 40182;
inline constexpr TextId kTextCityCharacter = 40183;
inline constexpr TextId kTextLongitudeRange = 40184;
inline constexpr TextId kTextLatitudeRange = 40185;
inline constexpr TextId kTextGmtRange = 40186;
inline constexpr TextId kTextDstHoursRange = 40187;
inline constexpr TextId kTextDstDayRange = 40188;
inline constexpr TextId kTextDstHourRange = 40189;
inline constexpr TextId kTextCityExists = 40190;
inline constexpr TextId kTextZoneUnknown = 40191;
inline constexpr TextId kTextAskDeleteCity = 40192;
inline constexpr TextId kTextNewCity = 40193;
inline constexpr TextId kTextChangeCity = 40194;
inline constexpr TextId kTextDstPeriod = 40195;
inline constexpr TextId kTextForecastListNotChanged = 40196;
inline constexpr TextId kTextNameTooLong = 40197;
inline constexpr TextId kTextAskSunDetails = 40198;

}  // namespace rlx
