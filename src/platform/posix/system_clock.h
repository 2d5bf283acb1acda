#pragma once

#include "platform/clock.h"

namespace rlx {

/// The machine's clock in its zone (the environment variable TZ, else the system's setting). Used from one thread.
class CSystemClock : public IClock {
public:
    DateTime Now() const override;

    /// From the smallest offset from UTC on the first days of the twelve months of the current year.
    int StandardBias() const override;

    DateTime UtcNow() const override;
    DateTime UtcOf(const DateTime& local) const override;
};

}  // namespace rlx
