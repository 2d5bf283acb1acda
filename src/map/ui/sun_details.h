#pragma once

#include <QWidget>

#include "base/calendar.h"
#include "places/city_info.h"
#include "shell/clock_text.h"
#include "shell/resources.h"

namespace rlx {

/// Shows the sun details of a city until the person closes them. `date` is the city's own. The rise/set model gets the
/// effective offset as the details hold it. User-interface thread.
void ShowSunDetails(const CitySunDetails& details, const Date& date, ClockForm form, const CResources& resources,
                    QWidget* parent);

}  // namespace rlx
