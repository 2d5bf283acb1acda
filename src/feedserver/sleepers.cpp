#include "feedserver/sleepers.h"

namespace rlx {

bool CSleepers::Sleep(MHD_Connection* connection, const std::function<bool(std::uint64_t)>& ask) {
    const std::lock_guard lock(m_mutex);
    if (m_closed || !ask(m_next)) return false;
    MHD_suspend_connection(connection);
    m_asleep.emplace(m_next++, connection);
    return true;
}

void CSleepers::Wake(std::uint64_t number) {
    const std::lock_guard lock(m_mutex);
    if (const auto found = m_asleep.extract(number)) MHD_resume_connection(found.mapped());
}

void CSleepers::Close() {
    const std::lock_guard lock(m_mutex);
    m_closed = true;
    for (const auto& [number, connection] : m_asleep)
        MHD_resume_connection(connection);
    m_asleep.clear();
}

}  // namespace rlx
