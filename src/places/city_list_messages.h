#pragma once

#include "places/rules_refresh.h"
#include "platform/message_boxes.h"
#include "shell/texts.h"

namespace rlx {

/// Says what a person must know of a change of the list: that it failed, and whose city is gone. Nothing else.
void ReportCityList(const CityListResult& result, IMessageBoxes& boxes, const ITexts& texts);

/// The same for a refresh; true when the rules are those of the year now.
bool ReportRefresh(const RulesRefresh& refresh, IMessageBoxes& boxes, const ITexts& texts);

/// What a refresh did: the year, how many cities changed, and how many could not.
std::u16string RefreshText(const RulesRefresh& refresh, int year, const ITexts& texts);

}  // namespace rlx
