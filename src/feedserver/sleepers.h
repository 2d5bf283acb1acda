#pragma once

#include <microhttpd.h>

#include <cstdint>
#include <functional>
#include <map>
#include <mutex>

namespace rlx {

/// The connections that wait for a source. Those who wake them may outlive the listener, so it is shared with them. Any
/// thread.
class CSleepers {
public:
    /// Puts a connection to sleep unless `ask` says no. What `ask` begins can wake it only after that. False: it is
    /// awake.
    bool Sleep(MHD_Connection* connection, const std::function<bool(std::uint64_t)>& ask);

    void Wake(std::uint64_t number);

    /// Wakes all and lets no other fall asleep.
    void Close();

private:
    std::mutex m_mutex;
    std::map<std::uint64_t, MHD_Connection*> m_asleep;
    std::uint64_t m_next = 0;
    bool m_closed = false;
};

}  // namespace rlx
