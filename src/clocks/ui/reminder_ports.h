#pragma once

#include "clocks/reminder_clock.h"
#include "clocks/ui/choose_city.h"
#include "platform/message_boxes.h"
#include "shell/clock_text.h"
#include "shell/registry_store.h"
#include "shell/resources.h"
#include "shell/setting_names.h"

namespace rlx {

/// What the dialogs of the reminders take from the program; all of it outlives them.
struct ReminderPorts {
    IRegistry& registry;
    CCityDatabase& cities;
    const IClock& clock;
    const CResources& resources;
    IMessageBoxes& boxes;
    CityChooser chooseCity;

    CReminderClock Clock() const {
        CRegistryStore settings(registry);
        return {cities, clock, LoadClockSettings(settings)};
    }

    ClockForm Form() const {
        CRegistryStore settings(registry);
        const bool twelve = settings.ReadDwordOr(keys::kRoamlytix, names::kTwelveHour, 0) == 1;
        return twelve ? ClockForm::kTwelve : ClockForm::kTwentyFour;
    }
};

}  // namespace rlx
