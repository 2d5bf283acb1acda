#pragma once

#include <cstdint>

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

    /// What a clock in UTC shows. Without a better source: the device's clock with its standard bias.
    virtual DateTime UtcNow() const { return InUtc(Now()); }

    /// When the device's clock shows `local`, in UTC: the first time where it shows it twice; a time that it leaves out
    /// counts as if it had not gone forward. Without a better source: by the standard bias.
    virtual DateTime UtcOf(const DateTime& local) const { return InUtc(local); }

private:
    DateTime InUtc(const DateTime& local) const { return AddSeconds(local, std::int64_t{StandardBias()} * 60); }
};

}  // namespace rlx
