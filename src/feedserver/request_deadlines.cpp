#include "feedserver/request_deadlines.h"

#include <sys/socket.h>

namespace rlx {

CRequestDeadlines::CRequestDeadlines() : m_thread([this](const std::stop_token& stop) { Watch(stop); }) {}

void CRequestDeadlines::Set(int socket, std::chrono::seconds fromNow) {
    const std::lock_guard lock(m_mutex);
    m_deadlines[socket] = Clock::now() + fromNow;
    if (m_deadlines.size() == 1) m_first.notify_one();
}

void CRequestDeadlines::Forget(int socket) {
    const std::lock_guard lock(m_mutex);
    m_deadlines.erase(socket);
}

void CRequestDeadlines::Watch(const std::stop_token& stop) {
    constexpr std::chrono::milliseconds kTurn{500};
    std::unique_lock lock(m_mutex);
    while (m_first.wait(lock, stop, [this] { return !m_deadlines.empty(); })) {
        m_first.wait_for(lock, stop, kTurn, [] { return false; });
        const Clock::time_point now = Clock::now();
        // Not closed: that is left to the owner, who sees its end.
        std::erase_if(m_deadlines, [now](const auto& each) {
            if (each.second > now) return false;
            shutdown(each.first, SHUT_RDWR);
            return true;
        });
        if (stop.stop_requested()) return;
    }
}

}  // namespace rlx
