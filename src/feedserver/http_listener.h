#pragma once

#include <chrono>
#include <cstdint>
#include <functional>
#include <memory>
#include <string>

#include "feedserver/answers.h"
#include "feedserver/server_config.h"
#include "feedserver/weather_source.h"

namespace rlx {

/// Bounds that keep a hostile crowd from filling the machine.
struct ListenerLimits {
    unsigned connections = 512;
    unsigned connectionsOfOne = 32;    ///< from one address
    unsigned idleSeconds = 10;         ///< a connection that is silent so long is dropped
    std::chrono::seconds request{30};  ///< from the connection, or the last answer, to the last byte of a request
    std::chrono::seconds reply{300};   ///< from there to the last byte of the answer
    std::size_t connectionBytes = 32'768;
    std::size_t bodyBytes = 16'384;  ///< of a request; a larger one is refused
};

/// Answers clients over HTTP: POST /feed speaks the feed protocol, GET /health tells a load balancer what is known.
/// Runs on a thread of its own until it is destroyed.
class CHttpListener {
public:
    /// Takes one line for each request; called on the listener's thread.
    using Log = std::function<void(const std::string&)>;

    /// `weather` may be null: then every city is unknown. It and the board outlive the listener.
    CHttpListener(const CKnowledgeBoard& board, ListenerLimits limits, Log log, CWeatherSource* weather = nullptr);
    ~CHttpListener();
    CHttpListener(const CHttpListener&) = delete;
    CHttpListener& operator=(const CHttpListener&) = delete;

    /// Port 0 takes any free one. What is wrong in one line, or empty.
    std::string Listen(const ListenAddress& address);

    /// Serves a socket that somebody else opened and listens on.
    std::string Serve(int socket);

    /// The port in use; 0 before.
    std::uint16_t Port() const;

private:
    class CService;
    std::unique_ptr<CService> m_service;
};

}  // namespace rlx
