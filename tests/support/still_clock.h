#pragma once

#include "platform/clock.h"

namespace rlx::test {

/// Shows what the test sets.
struct StillClock : IClock {
    DateTime now{.date = {2026, 11, 22}, .hour = 14, .minute = 22, .second = 33};
    int bias = 0;

    DateTime Now() const override { return now; }
    int StandardBias() const override { return bias; }
};

}  // namespace rlx::test
