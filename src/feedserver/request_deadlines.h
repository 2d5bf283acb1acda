#pragma once

#include <chrono>
#include <condition_variable>
#include <map>
#include <mutex>
#include <thread>

namespace rlx {

/// Ends connections that are not silent and yet never come to an end: a byte now and then keeps a time-out from seeing
/// them. Runs on a thread of its own that sleeps while there is no connection. All members may be called from any
/// thread.
class CRequestDeadlines {
public:
    CRequestDeadlines();

    /// Shuts the socket down when so much time has passed, unless it was set anew or forgotten before. Looks twice a
    /// second. The socket must not be closed before `Forget`.
    void Set(int socket, std::chrono::seconds fromNow);

    /// The socket is about to be closed.
    void Forget(int socket);

private:
    using Clock = std::chrono::steady_clock;

    void Watch(const std::stop_token& stop);

    std::mutex m_mutex;
    std::condition_variable_any m_first;
    std::map<int, Clock::time_point> m_deadlines;
    std::jthread m_thread;  // last: it uses all the others
};

}  // namespace rlx
