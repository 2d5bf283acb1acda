#include "map/minute_timer.h"

#include <utility>

namespace rlx {

CMinuteTimer::CMinuteTimer(std::function<void()> post, std::chrono::milliseconds period)
    : m_post(std::move(post)), m_period(period), m_thread([this] { Run(); }) {}

CMinuteTimer::~CMinuteTimer() {
    {
        const std::lock_guard lock(m_mutex);
        m_stopping = true;
    }
    m_changed.notify_all();
    m_thread.join();
}

void CMinuteTimer::SetVisible(bool visible) {
    {
        const std::lock_guard lock(m_mutex);
        if (visible == m_visible) return;
        m_visible = visible;
    }
    if (visible) m_minute = true;
    m_changed.notify_all();
}

// Each second is counted from the one before, not from the end of the call, so that the seconds do not drift.
void CMinuteTimer::Run() {
    std::unique_lock lock(m_mutex);
    int calls = 0;
    while (!m_stopping) {
        m_changed.wait(lock, [this] { return m_visible || m_stopping; });
        auto next = std::chrono::steady_clock::now() + m_period;
        while (!m_changed.wait_until(lock, next, [this] { return !m_visible || m_stopping; })) {
            // The lock is held: posting is quick, and hiding thereby waits for a call that has begun.
            if (++calls % kCallsPerMinute == 0) m_minute = true;
            m_post();
            next += m_period;
        }
    }
}

}  // namespace rlx
