#pragma once

namespace rlx {

/// Says which of the coming writes fail. Shared by the failing stand-ins of a test.
class CFailurePlan {
public:
    /// What a write throws at which the device dies.
    struct Died {};

    /// The n-th write from now on fails, counted from 1, and with `count` those behind it; 0 stops failing.
    void FailAt(int n, int count = 1) {
        m_first = m_seen + n;
        m_end = n == 0 ? m_first : m_first + count;
    }

    /// The device dies at the n-th write from now on; 0: it lives.
    void DieAt(int n) { m_death = n == 0 ? 0 : m_seen + n; }

    /// All writes fail from now on.
    void FailAll() { FailAt(1, 1 << 20); }

    /// How many writes were asked for, refused ones included.
    int Seen() const { return m_seen; }

    /// Counts one write; false when it must fail.
    bool Allows() {
        if (++m_seen == m_death) throw Died();
        return m_seen < m_first || m_seen >= m_end;
    }

private:
    int m_seen = 0;
    int m_first = 0;
    int m_end = 0;
    int m_death = 0;
};

}  // namespace rlx
