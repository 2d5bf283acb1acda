#pragma once

#include "platform/clock.h"

namespace rlx {

/// A clock that stands still until it is set.
class CFixedClock : public IClock {
public:
    explicit CFixedClock(const DateTime& now = {}, int bias = 0) : m_now(now), m_bias(bias) {}

    DateTime Now() const override { return m_now; }
    int StandardBias() const override { return m_bias; }

    void Set(const DateTime& now) { m_now = now; }
    void SetBias(int bias) { m_bias = bias; }

private:
    DateTime m_now;
    int m_bias;
};

}  // namespace rlx
