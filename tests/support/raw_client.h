#pragma once

#include <arpa/inet.h>
#include <netinet/in.h>
#include <sys/socket.h>
#include <sys/time.h>
#include <unistd.h>

#include <cstdint>
#include <string>

namespace rlx::test {

/// Sends bytes to a port of this machine and returns what comes back until the other side closes.
inline std::string RawExchange(std::uint16_t port, const std::string& bytes) {
    const int client = socket(AF_INET, SOCK_STREAM | SOCK_CLOEXEC, 0);
    sockaddr_in address{};
    address.sin_family = AF_INET;
    address.sin_addr.s_addr = htonl(INADDR_LOOPBACK);
    address.sin_port = htons(port);
    const timeval patience{20, 0};
    setsockopt(client, SOL_SOCKET, SO_RCVTIMEO, &patience, sizeof patience);
    setsockopt(client, SOL_SOCKET, SO_SNDTIMEO, &patience, sizeof patience);
    std::string reply;
    if (connect(client, reinterpret_cast<const sockaddr*>(&address), sizeof address) == 0) {
        std::size_t sent = 0;
        while (sent < bytes.size()) {
            const ssize_t count = send(client, bytes.data() + sent, bytes.size() - sent, MSG_NOSIGNAL);
            if (count <= 0) break;
            sent += static_cast<std::size_t>(count);
        }
        char block[4096];
        for (ssize_t count = recv(client, block, sizeof block, 0); count > 0;
             count = recv(client, block, sizeof block, 0))
            reply.append(block, static_cast<std::size_t>(count));
    }
    close(client);
    return reply;
}

}  // namespace rlx::test
