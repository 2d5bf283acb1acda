#pragma once

#include <optional>
#include <string>

#include "clocks/city_clock.h"
#include "clocks/reminder.h"
#include "places/city_database.h"
#include "platform/clock.h"
#include "shell/clock_settings.h"

namespace rlx {

/// When a reminder comes.
struct ReminderMoment {
    DateTime device;  ///< what the device's clock shows then
    DateTime utc;
    TimeOnClock lies = TimeOnClock::kOnce;
};

/// Tells by the device's clock, the clock settings and the cities' rules when reminders come. Nothing is kept, so a
/// changed zone, home city or rule counts from the next question on. References must outlive it. Used from one thread.
class CReminderClock {
public:
    CReminderClock(CCityDatabase& cities, const IClock& clock, const ClockSettings& settings)
        : m_cities(cities), m_clock(clock), m_settings(settings) {}

    /// The city of that place; nothing when the list of cities has none.
    std::optional<CityIndex> Find(std::u16string_view place);

    /// The city by whose clock a reminder goes: that of its place, else the home city.
    CityRecord CityOf(std::u16string_view place);

    ReminderMoment MomentOf(const Reminder& reminder);

    /// What the city's clock shows when the device's shows `device`.
    DateTime CityTime(std::u16string_view place, const DateTime& device);

    DateTime Now() const { return m_clock.Now(); }
    DateTime UtcNow() const { return m_clock.UtcNow(); }

private:
    DeviceZone Zone();

    CCityDatabase& m_cities;
    const IClock& m_clock;
    const ClockSettings m_settings;
};

}  // namespace rlx
