#pragma once

#include <atomic>
#include <chrono>
#include <condition_variable>
#include <functional>
#include <mutex>
#include <thread>

namespace rlx {

/// The worker behind the Map screen: calls back once a second, which drives the map clock, and raises a flag after
/// every 60 calls, on which the screen draws the shadow anew. Silent while the screen is hidden: the thread then sleeps
/// without a timer. Public calls come from one thread, the user interface's; the callback runs on the worker and must
/// do no more than post a message. The destructor stops the thread at once and joins it.
class CMinuteTimer {
public:
    static constexpr int kCallsPerMinute = 60;

    /// Starts hidden. `period` is the time between two calls.
    explicit CMinuteTimer(std::function<void()> post, std::chrono::milliseconds period = std::chrono::seconds(1));
    ~CMinuteTimer();
    CMinuteTimer(const CMinuteTimer&) = delete;
    CMinuteTimer& operator=(const CMinuteTimer&) = delete;

    /// Showing raises the flag, so that the shadow of a screen that was hidden is of now. After hiding returns, no call
    /// runs any more.
    void SetVisible(bool visible);

    /// True once for each time the flag was raised; a flag raised twice before it is taken counts once.
    bool TakeMinute() { return m_minute.exchange(false); }

private:
    void Run();

    const std::function<void()> m_post;
    const std::chrono::milliseconds m_period;
    std::atomic<bool> m_minute{false};
    std::mutex m_mutex;
    std::condition_variable m_changed;
    bool m_visible = false;   // under m_mutex
    bool m_stopping = false;  // under m_mutex
    std::thread m_thread;     // last: starts when all others are there
};

}  // namespace rlx
