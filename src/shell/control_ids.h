#pragma once

/// The numbers of dialogs and their controls. The resource compiler reads them from here, so each stands once:
/// "kName = number," on a line of its own. A number is never used for another dialog or control.
namespace rlx {

enum DialogId : int {
    kDialogLanguage = 318,  // what makes a library a language module
    kDialogInstallLanguages = 319,
    kDialogChooseCity = 320,
    kDialogName = 321,  // asks for one line of text; its title comes from the string table
    kDialogTodayOptions = 322,
    kDialogEditUnits = 323,
    kDialogOwnerName = 324,
    kDialogSunDetails = 325,
    kDialogCredits = 326,
    kDialogAddItem = 327,     // Packing List > New item
    kDialogAddFromAll = 328,  // Packing List > Add/Remove item(s)
    kDialogChooseSkin = 330,
    kDialogEditSkin = 331,
    kDialogPickColour = 332,    // its title comes from the string table
    kDialogPickSkinFile = 333,  // a picture or a set of icons of a skin; its title comes from the string table
    kDialogNewCategory = 336,   // Packing List > New category
    kDialogEditCities = 343,    // Places > Edit cities
    kDialogCity = 344,          // one city of the list; its title comes from the string table
    kDialogReminders = 350,
    kDialogReminder = 351,
    kDialogChooseFolder = 353,  // its title comes from the string table
};

enum ControlId : int {
    kControlOk = 1,
    kControlCancel = 2,

    kControlLanguageList = 1000,
    kControlModuleFolder = 1010,
    kControlBrowse = 1011,
    kControlModuleList = 1012,
    kControlRemoveAfterInstall = 1013,
    kControlInstall = 1014,
    kControlCitySearch = 1020,
    kControlCityList = 1021,
    kControlNamePrompt = 1030,
    kControlName = 1031,
    kControlTodayCities = 1040,
    kControlTodayRates = 1041,
    kControlTodayHeading = 1042,
    kControlUnitCategory = 1050,
    kControlUnitList = 1051,
    kControlUnitName = 1052,
    kControlUnitValue = 1053,
    kControlUnitAdd = 1054,
    kControlUnitDelete = 1055,
    kControlOwnerName = 1060,
    kControlSunCity = 1070,
    kControlSunPosition = 1071,
    kControlSunDaylightSaving = 1072,
    kControlSunPeriod = 1073,
    kControlSunGmt = 1074,
    kControlSunrise = 1075,
    kControlSunset = 1076,
    kControlDayLength = 1077,
    kControlSunNote = 1078,
    kControlCreditsText = 1080,
    kControlItemText = 1090,
    kControlItemLists = 1091,
    kControlItemCategories = 1092,
    kControlItemListsLabel = 1093,
    kControlItemCategoriesLabel = 1094,
    kControlItemHint = 1095,
    kControlAddFromAll = 1096,
    kControlTemplate = 1097,
    kControlFromItems = 1100,
    kControlToLists = 1101,
    kControlToCategories = 1102,
    kControlToListsLabel = 1103,
    kControlOtherListsLabel = 1104,
    kControlToCategoriesLabel = 1105,
    kControlSkinList = 1200,
    kControlSkinFolder = 1201,
    kControlSkinBrowse = 1202,
    kControlSkinKeys = 1210,
    kControlSkinChange = 1211,
    kControlSkinReset = 1212,
    kControlColourText = 1220,
    kControlSkinFileList = 1230,
    kControlCityAdd = 1320,
    kControlCityChange = 1321,
    kControlCityDelete = 1322,
    kControlCityName = 1323,
    kControlCityCountry = 1324,
    kControlCityLongitude = 1325,
    kControlCityLatitude = 1326,
    kControlCityZone = 1327,
    kControlCityFill = 1328,
    kControlCityGmt = 1329,
    kControlCityDstHours = 1330,
    kControlCityStartDay = 1331,
    kControlCityStartHour = 1332,
    kControlCityEndDay = 1333,
    kControlCityEndHour = 1334,
    kControlCityDaylight = 1335,
    kControlReminderList = 1360,
    kControlReminderEdit = 1361,
    kControlReminderClear = 1362,
    kControlReminderText = 1370,
    kControlReminderCity = 1371,
    kControlReminderDate = 1372,
    kControlReminderTime = 1373,
    kControlReminderNote = 1374,
    kControlFolderPath = 1390,
    kControlFolderList = 1391,
};

}  // namespace rlx
