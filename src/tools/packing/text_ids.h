#pragma once

#include "shell/text_id.h"

/// Packing list.
namespace rlx {

inline constexpr TextId kTextToolPacking = 40604;

inline constexpr TextId kTextNewCategory = 41000;
inline constexpr TextId kTextNewList = 41001;
inline constexpr TextId kTextNewItem = 41002;
inline constexpr TextId kTextAddRemoveItems = 41003;
inline constexpr TextId kTextEditItem = 41004;
inline constexpr TextId kTextEditItemHint = 41005;
inline constexpr TextId kTextDeleteItem = 41006;
inline constexpr TextId kTextAllCategory = 41007;
inline constexpr TextId kTextAllItems = 41008;
inline constexpr TextId kTextMaxCategories = 41009;
inline constexpr TextId kTextMaxLists = 41010;
inline constexpr TextId kTextCannotDeleteAll = 41011;
inline constexpr TextId kTextCannotDeleteAllItems = 41012;
inline constexpr TextId kTextAskClearCategory = 41013;
inline constexpr TextId kTextAskClearEverything = 41014;
inline constexpr TextId kTextAskSavePacking = 41015;
inline constexpr TextId kTextItemBefore = 41016;
inline constexpr TextId kTextItemRefused = 41017;
inline constexpr TextId kTextNameRefused = 41018;
inline constexpr TextId kTextUndo = 41019;
inline constexpr TextId kTextPackedCount = 41020;
inline constexpr TextId kTextEmptyTemplate = 41022;
inline constexpr TextId kTextNoItemsYet = 41023;
inline constexpr TextId kTextNoneChecked = 41024;
inline constexpr TextId kTextAllChecked = 41025;
inline constexpr TextId kTextCategoryBefore = 41030;
inline constexpr TextId kTextListBefore = 41031;
inline constexpr TextId kTextPackingNotFound = 41032;
inline constexpr TextId kTextPackingNotSaved = 41033;
inline constexpr TextId kTextPackingVersionKept = 41034;

// Each template has a name and its items, with ";" between them.
inline constexpr TextId kTextTemplateCityBreak = 41040;
inline constexpr TextId kTextTemplateCityBreakItems = 41041;
inline constexpr TextId kTextTemplateBeach = 41042;
inline constexpr TextId kTextTemplateBeachItems = 41043;
inline constexpr TextId kTextTemplateHiking = 41044;
inline constexpr TextId kTextTemplateHikingItems = 41045;
inline constexpr TextId kTextTemplateBusiness = 41046;
inline constexpr TextId kTextTemplateBusinessItems = 41047;
inline constexpr TextId kTextTemplateWinter = 41048;
inline constexpr TextId kTextTemplateWinterItems = 41049;
inline constexpr TextId kTextTemplateCamping = 41050;
inline constexpr TextId kTextTemplateCampingItems = 41051;

}  // namespace rlx
