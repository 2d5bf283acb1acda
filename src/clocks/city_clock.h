#pragma once

#include <cstdint>
#include <optional>

#include "places/city_time.h"
#include "places/dst_rule.h"

/// The clock that reminders go by, and its inverse. A city's daylight saving is decided to the hour by what the
/// device's clock shows, where the Clocks screen decides by the day: on the days of a change, and for cities far away
/// some hours around it, the two differ. Pure functions, any thread.
namespace rlx {

/// What a city's clock goes by.
struct CityZone {
    GmtOffset gmt = 0;
    DstRule rule;
};

/// What the device's clock is taken to run on.
struct DeviceZone {
    std::optional<int> bias;  ///< the standard bias of the device's zone; without it the home city's time
    CityZone home;
};

/// What the city's clock shows when the device's clock shows `device`.
DateTime CityTimeAt(const CityZone& city, const DeviceZone& zone, const DateTime& device);

/// How a time lies on a city's clock.
enum class TimeOnClock {
    kOnce,
    kSkipped,  ///< the clock goes forward over it
    kTwice,    ///< the clock goes back and shows it again
};

struct DeviceMoment {
    DateTime device;
    std::int64_t later = 0;  ///< seconds after the first time that the device's clock shows it
    TimeOnClock lies = TimeOnClock::kOnce;
};

/// When the city's clock shows `shown`, as a reading of the device's clock: the first time of two. A skipped time
/// counts as if the clock had not gone forward. A device's clock that shows the home city's time changes with it: an
/// hour that it leaves out is none, and an hour that it shows twice is two.
DeviceMoment DeviceTimeOf(const CityZone& city, const DeviceZone& zone, const DateTime& shown);

}  // namespace rlx
