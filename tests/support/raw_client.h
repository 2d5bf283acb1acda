#pragma once

#include <arpa/inet.h>
#include <netinet/in.h>
#include <sys/socket.h>
#include <sys/time.h>
#include <unistd.h>

#include <algorithm>
#include <cerrno>
#include <chrono>
#include <cstdint>
#include <string>
#include <string_view>

namespace rlx::test {

/// A connection to a port of this machine that carries whatever bytes a test wants.
class CRawClient {
public:
    explicit CRawClient(std::uint16_t port) : m_socket(socket(AF_INET, SOCK_STREAM | SOCK_CLOEXEC, 0)) {
        sockaddr_in address{};
        address.sin_family = AF_INET;
        address.sin_addr.s_addr = htonl(INADDR_LOOPBACK);
        address.sin_port = htons(port);
        SetPatience(std::chrono::seconds(20));
        m_open = connect(m_socket, reinterpret_cast<const sockaddr*>(&address), sizeof address) == 0;
    }
    ~CRawClient() { close(m_socket); }
    CRawClient(const CRawClient&) = delete;
    CRawClient& operator=(const CRawClient&) = delete;

    /// Of each sending and receiving.
    void SetPatience(std::chrono::milliseconds patience) {
        const timeval time{patience.count() / 1000, patience.count() % 1000 * 1000};
        setsockopt(m_socket, SOL_SOCKET, SO_RCVTIMEO, &time, sizeof time);
        setsockopt(m_socket, SOL_SOCKET, SO_SNDTIMEO, &time, sizeof time);
    }

    /// False when the other side has closed.
    bool Send(std::string_view bytes) {
        while (m_open && !bytes.empty()) {
            const ssize_t count = send(m_socket, bytes.data(), bytes.size(), MSG_NOSIGNAL);
            m_open = count > 0;
            if (m_open) bytes.remove_prefix(static_cast<std::size_t>(count));
        }
        return m_open;
    }

    /// Whatever comes next; empty when the other side has closed, or when nothing came in time.
    std::string Receive() {
        char block[4096];
        const ssize_t count = m_open ? recv(m_socket, block, sizeof block, 0) : 0;
        m_open = count > 0 || (count < 0 && errno == EAGAIN);
        return {block, static_cast<std::size_t>(std::max<ssize_t>(count, 0))};
    }

private:
    int m_socket;
    bool m_open = false;
};

/// Sends bytes and returns what comes back until the other side closes.
inline std::string RawExchange(std::uint16_t port, const std::string& bytes) {
    CRawClient client(port);
    client.Send(bytes);
    std::string reply;
    for (std::string more = client.Receive(); !more.empty(); more = client.Receive())
        reply += more;
    return reply;
}

}  // namespace rlx::test
