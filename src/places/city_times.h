#pragma once

#include <array>
#include <cstdint>
#include <string>

#include "places/city_database.h"
#include "places/city_time.h"
#include "platform/clock.h"
#include "shell/clock_settings.h"
#include "shell/texts.h"

namespace rlx {

inline constexpr int kHomeSlot = 0;

/// What one clock shows. Of a city that does not exist: empty name and country, GMT.
struct ClockReading {
    int slot = kHomeSlot;  ///< `kHomeSlot`, or the number of a world clock from 1
    CityIndex cityIndex = 0;
    std::u16string name;
    std::u16string country;
    GmtOffset gmt = 0;
    GmtOffset effectiveGmt = 0;  ///< with daylight saving where `dst`
    bool dst = false;
    std::u16string timeText;
    std::u16string dateText;      ///< long form for the home clock, short for the others
    std::u16string longDateText;  ///< long form
    std::int64_t hour = 0;        ///< 0 to 23 unless offsets lie more than a day apart (`CityTime`)
    int minute = 0;
    int second = 0;
    int day = 1;
    int month = 1;
    int year = 1970;
};

/// Tells the time of cities by the device's clock, the clock settings and each city's rule. The clocks decide daylight
/// saving by the day: a city's clock has it in force for all of the start day and all of the end day, days counted by
/// the city's clock without daylight saving, since with it the question would ask for its own answer. The home clock of
/// a device that shows the home city's time counts days by the device's clock.
///
/// References must outlive the object. Used from one thread.
class CCityTimes {
public:
    CCityTimes(CCityDatabase& cities, const IClock& clock, const ITexts& texts, const ClockSettings& settings);

    /// The offset that the device's clock is taken to run on: that of the home city, its daylight saving decided to the
    /// hour by the device's clock, or with "syncltz" that of the device's time-zone setting.
    ClockOffset Reference(const DateTime& now);

    /// A city's offset with daylight saving, as a world clock has it.
    GmtOffset EffectiveGmt(CityIndex index, const DateTime& now);

    /// A city as a world clock shows it, at slot 1.
    ClockReading WorldClock(CityIndex index, const DateTime& now);

    /// The home city as its own clock shows it: without "syncltz" the device's time and date, whatever the rule says.
    ClockReading HomeClock(const DateTime& now);

    /// Home and the four world clocks, in this order, all at one instant.
    std::array<ClockReading, 5> AllClocks(const DateTime& now);

    /// What the device's clock shows.
    DateTime Now() const { return m_clock.Now(); }

private:
    CityRecord City(CityIndex index);
    ClockReading Read(int slot, const CityRecord& city, const ClockOffset& reference, const DateTime& now) const;
    ClockReading ReadHome(const ClockOffset& reference, const DateTime& now);

    CCityDatabase& m_cities;
    const IClock& m_clock;
    const ITexts& m_texts;
    const ClockSettings m_settings;
};

}  // namespace rlx
