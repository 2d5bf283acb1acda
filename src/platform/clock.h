#pragma once

#include "base/calendar.h"

namespace rlx {

/// The device's clock and time-zone setting. Nobody else reads a clock.
class IClock {
public:
    virtual ~IClock() = default;

    /// What the device's clock shows.
    virtual DateTime Now() const = 0;

    /// The standard bias of the device's zone in minutes: UTC = local time + bias. Daylight saving is never in it
    /// (Paris: -60).
    virtual int StandardBias() const = 0;
};

}  // namespace rlx
