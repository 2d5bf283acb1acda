#pragma once

#include <arpa/inet.h>
#include <netinet/in.h>
#include <sys/socket.h>
#include <unistd.h>

#include <chrono>
#include <cstdint>
#include <mutex>
#include <string>
#include <thread>
#include <utility>
#include <vector>

namespace rlx::test {

enum class Ending {
    kClose,  ///< ends the connection in order
    kReset,  ///< breaks it off
    kHold,   ///< says nothing more and leaves the client waiting
};

/// What the server does with one connection: reads the whole request, sends these bytes, ends so.
struct ScriptedReply {
    std::string bytes;  ///< "SELF" stands for the server's own address, "http://127.0.0.1:port"
    Ending ending = Ending::kClose;
    int pause = 0;  ///< milliseconds between one byte and the next
};

/// A server on loopback that answers one connection after the other by a script, with exactly the bytes it is given.
/// Connections beyond the script are closed without a word. What came in can be read when the client is done.
class CScriptedServer {
public:
    explicit CScriptedServer(std::vector<ScriptedReply> script) : m_script(std::move(script)) {
        m_listener = socket(AF_INET, SOCK_STREAM | SOCK_CLOEXEC, 0);
        sockaddr_in address{};
        address.sin_family = AF_INET;
        address.sin_addr.s_addr = htonl(INADDR_LOOPBACK);
        socklen_t size = sizeof address;
        auto* const general = reinterpret_cast<sockaddr*>(&address);
        if (bind(m_listener, general, size) != 0 || listen(m_listener, 16) != 0) return;
        getsockname(m_listener, general, &size);
        m_port = ntohs(address.sin_port);
        m_thread = std::thread([this] { Serve(); });
    }

    ~CScriptedServer() {
        shutdown(m_listener, SHUT_RDWR);
        if (m_thread.joinable()) m_thread.join();
        close(m_listener);
        for (const int held : m_held)
            close(held);
    }

    CScriptedServer(const CScriptedServer&) = delete;
    CScriptedServer& operator=(const CScriptedServer&) = delete;

    std::uint16_t Port() const { return m_port; }

    std::u16string Url(const std::u16string& path = u"/feed") const {
        const std::string port = std::to_string(m_port);
        return u"http://127.0.0.1:" + std::u16string(port.begin(), port.end()) + path;
    }

    /// Each request as it came, headers and body.
    std::vector<std::string> Requests() {
        const std::lock_guard lock(m_mutex);
        return m_requests;
    }

private:
    void Serve() {
        for (std::size_t turn = 0;; ++turn) {
            const int client = accept4(m_listener, nullptr, nullptr, SOCK_CLOEXEC);
            if (client < 0) return;
            std::string request = ReadRequest(client);
            {
                const std::lock_guard lock(m_mutex);
                m_requests.push_back(std::move(request));
            }
            const ScriptedReply reply = turn < m_script.size() ? m_script[turn] : ScriptedReply();
            Send(client, WithAddress(reply.bytes), reply.pause);
            End(client, reply.ending);
        }
    }

    std::string WithAddress(std::string bytes) const {
        const std::size_t self = bytes.find("SELF");
        if (self != std::string::npos) bytes.replace(self, 4, "http://127.0.0.1:" + std::to_string(m_port));
        return bytes;
    }

    static std::string ReadRequest(int client) {
        std::string request;
        std::size_t wanted = std::string::npos;
        char block[4096];
        while (request.size() < wanted) {
            const ssize_t count = recv(client, block, sizeof block, 0);
            if (count <= 0) break;
            request.append(block, static_cast<std::size_t>(count));
            const std::size_t end = request.find("\r\n\r\n");
            if (end == std::string::npos) continue;
            const std::size_t length = request.find("Content-Length: ");
            wanted = end + 4 + (length < end ? std::stoul(request.substr(length + 16)) : 0);
        }
        return request;
    }

    static void Send(int client, const std::string& bytes, int pause) {
        std::size_t sent = 0;
        while (sent < bytes.size()) {
            const std::size_t most = pause > 0 ? 1 : bytes.size() - sent;
            const ssize_t count = send(client, bytes.data() + sent, most, MSG_NOSIGNAL);
            if (count <= 0) return;
            sent += static_cast<std::size_t>(count);
            std::this_thread::sleep_for(std::chrono::milliseconds(pause));
        }
    }

    void End(int client, Ending ending) {
        if (ending == Ending::kHold) {
            m_held.push_back(client);
            return;
        }
        if (ending == Ending::kReset) {
            const linger atOnce{1, 0};
            setsockopt(client, SOL_SOCKET, SO_LINGER, &atOnce, sizeof atOnce);
        }
        close(client);
    }

    std::vector<ScriptedReply> m_script;
    int m_listener = -1;
    std::uint16_t m_port = 0;
    std::mutex m_mutex;
    std::vector<std::string> m_requests;
    std::vector<int> m_held;
    std::thread m_thread;
};

}  // namespace rlx::test
