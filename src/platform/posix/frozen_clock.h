#pragma once

#include <optional>

#include "platform/clock.h"

namespace rlx {

/// Replaces the reading or the bias of another clock by a fixed one. Does not own the other clock.
class CFrozenClock : public IClock {
public:
    CFrozenClock(const IClock& clock, std::optional<DateTime> now, std::optional<int> bias)
        : m_clock(clock), m_now(now), m_bias(bias) {}

    DateTime Now() const override { return m_now ? *m_now : m_clock.Now(); }
    int StandardBias() const override { return m_bias ? *m_bias : m_clock.StandardBias(); }
    DateTime UtcNow() const override { return m_now || m_bias ? IClock::UtcNow() : m_clock.UtcNow(); }
    DateTime UtcOf(const DateTime& local) const override {
        return m_now || m_bias ? IClock::UtcOf(local) : m_clock.UtcOf(local);
    }

private:
    const IClock& m_clock;
    const std::optional<DateTime> m_now;
    const std::optional<int> m_bias;
};

}  // namespace rlx
