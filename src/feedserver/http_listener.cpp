#include "feedserver/http_listener.h"

#include <arpa/inet.h>
#include <microhttpd.h>
#include <netinet/in.h>
#include <sys/socket.h>

#include <cerrno>
#include <cstring>
#include <memory>
#include <new>
#include <utility>

#include "feedserver/http_connection.h"
#include "feedserver/request_deadlines.h"
#include "feedserver/sleepers.h"

namespace rlx {

namespace {

/// What has come of one request so far.
struct Incoming {
    std::string body;
    std::size_t received = 0;
    bool hasWaited = false;  ///< for a source; it is answered now, whatever there is
};

/// So much of a body that is too large is read, to answer a client that only erred; then it is dropped.
constexpr std::size_t kMostDiscarded = 1 << 20;

/// A path as it may stand in a log: no control characters, not endless.
std::string Printable(std::string_view text) {
    std::string clean(text.substr(0, 80));
    for (char& each : clean) {
        if (each <= ' ' || each > '~') each = '?';
    }
    return clean;
}

bool SocketAddressOf(const ListenAddress& address, sockaddr_storage& storage) {
    auto* four = reinterpret_cast<sockaddr_in*>(&storage);
    auto* six = reinterpret_cast<sockaddr_in6*>(&storage);
    if (inet_pton(AF_INET, address.host.c_str(), &four->sin_addr) == 1) {
        four->sin_family = AF_INET;
        four->sin_port = htons(address.port);
        return true;
    }
    if (inet_pton(AF_INET6, address.host.c_str(), &six->sin6_addr) != 1) return false;
    six->sin6_family = AF_INET6;
    six->sin6_port = htons(address.port);
    return true;
}

}  // namespace

class CHttpListener::CService {
public:
    CService(const CKnowledgeBoard& board, ListenerLimits limits, Log log, CWeatherSource* weather)
        : m_board(board), m_limits(limits), m_log(std::move(log)), m_weather(weather) {}

    ~CService() {
        // A daemon must not be stopped while connections sleep.
        m_sleepers->Close();
        if (m_daemon != nullptr) MHD_stop_daemon(m_daemon);
    }

    CService(const CService&) = delete;
    CService& operator=(const CService&) = delete;

    bool Start(unsigned flags, const MHD_OptionItem& where) {
        const MHD_OptionItem options[] = {
            where,
            {MHD_OPTION_CONNECTION_LIMIT, static_cast<intptr_t>(m_limits.connections), nullptr},
            {MHD_OPTION_PER_IP_CONNECTION_LIMIT, static_cast<intptr_t>(m_limits.connectionsOfOne), nullptr},
            {MHD_OPTION_CONNECTION_TIMEOUT, static_cast<intptr_t>(m_limits.idleSeconds), nullptr},
            {MHD_OPTION_CONNECTION_MEMORY_LIMIT, static_cast<intptr_t>(m_limits.connectionBytes), nullptr},
            {MHD_OPTION_END, 0, nullptr}};
        // Not by epoll: up to 0.9.75 at least, the library falls asleep over 128 events that come at once.
        m_daemon = MHD_start_daemon(flags | MHD_USE_POLL_INTERNAL_THREAD | MHD_ALLOW_SUSPEND_RESUME, 0, nullptr,
                                    nullptr, &CService::OnRequest, this, MHD_OPTION_NOTIFY_COMPLETED,
                                    &CService::OnCompleted, this, MHD_OPTION_NOTIFY_CONNECTION, &CService::OnConnection,
                                    this, MHD_OPTION_ARRAY, options, MHD_OPTION_END);
        return m_daemon != nullptr;
    }

    std::uint16_t Port() const {
        const MHD_DaemonInfo* info =
            m_daemon == nullptr ? nullptr : MHD_get_daemon_info(m_daemon, MHD_DAEMON_INFO_BIND_PORT);
        return info == nullptr ? std::uint16_t{0} : info->port;
    }

private:
    static MHD_Result OnRequest(void* self, MHD_Connection* connection, const char* url, const char* method,
                                const char*, const char* upload, std::size_t* uploadSize, void** state) {
        auto& service = *static_cast<CService*>(self);
        if (*state == nullptr) {
            *state = new (std::nothrow) Incoming();
            return *state == nullptr ? MHD_NO : MHD_YES;
        }
        auto& incoming = *static_cast<Incoming*>(*state);
        if (*uploadSize == 0) return service.Answer(connection, url, method, incoming);
        incoming.received += *uploadSize;
        if (incoming.received <= service.m_limits.bodyBytes) incoming.body.append(upload, *uploadSize);
        *uploadSize = 0;
        return incoming.received > kMostDiscarded ? MHD_NO : MHD_YES;
    }

    static void OnCompleted(void* self, MHD_Connection* connection, void** state, MHD_RequestTerminationCode) {
        delete static_cast<Incoming*>(*state);
        *state = nullptr;
        auto& service = *static_cast<CService*>(self);
        service.m_deadlines.Set(SocketOf(connection), service.m_limits.request);
    }

    static void OnConnection(void* self, MHD_Connection* connection, void**, MHD_ConnectionNotificationCode what) {
        auto& service = *static_cast<CService*>(self);
        if (what == MHD_CONNECTION_NOTIFY_STARTED) {
            service.m_deadlines.Set(SocketOf(connection), service.m_limits.request);
        } else {
            service.m_deadlines.Forget(SocketOf(connection));
        }
    }

    MHD_Result Answer(MHD_Connection* connection, const char* url, const char* method, Incoming& incoming) {
        m_deadlines.Set(SocketOf(connection), m_limits.reply);
        const std::optional<ServedAnswer> answer = Route(connection, url, method, incoming);
        if (!answer) return MHD_YES;
        const MHD_Result result = QueueAnswer(connection, *answer);
        m_log(ClientOf(connection) + " " + Printable(method) + " " + Printable(url) + " " +
              std::to_string(answer->status) + " " + std::to_string(answer->code) + " " +
              std::to_string(answer->body.size()));
        return result;
    }

    /// Nothing when the connection was put to sleep: the same request comes again then.
    std::optional<ServedAnswer> Route(MHD_Connection* connection, std::string_view url, std::string_view method,
                                      Incoming& incoming) {
        const std::shared_ptr<const Knowledge> knowledge = m_board.Get();
        if (url == "/health" && (method == "GET" || method == "HEAD")) return HealthAnswer(*knowledge, m_weather);
        if (url != "/feed" && url != "/health") return PlainAnswer(404, "not here\n");
        if (url != "/feed" || method != "POST") {
            ServedAnswer out = PlainAnswer(405, "not so\n");
            out.headers.emplace_back("Allow", url == "/feed" ? "POST" : "GET, HEAD");
            return out;
        }
        if (incoming.received > m_limits.bodyBytes) return PlainAnswer(413, "too large\n");
        const FeedQuestion question = ParseFeedQuestion(incoming.body);
        FeedAnswer answer = AnswerQuestion(question, *knowledge);
        if (m_weather != nullptr && question.job == FeedJob::kWeather) {
            std::optional<WeatherReply> reply = AskWeather(connection, question.city, incoming);
            if (!reply) return std::nullopt;
            answer.code = reply->code;
            answer.body = std::move(reply->body);
        }
        return ServedFeedAnswer(std::move(answer), SessionOf(connection));
    }

    std::optional<WeatherReply> AskWeather(MHD_Connection* connection, const std::string& city, Incoming& incoming) {
        std::optional<WeatherReply> reply;
        const bool sleeps = !incoming.hasWaited && m_sleepers->Sleep(connection, [&](std::uint64_t number) {
            reply = m_weather->Ask(city, [sleepers = m_sleepers, number] { sleepers->Wake(number); });
            return !reply;
        });
        incoming.hasWaited = true;
        if (!sleeps && !reply) reply = m_weather->Ask(city, {});
        return reply;
    }

    const CKnowledgeBoard& m_board;
    ListenerLimits m_limits;
    Log m_log;
    CWeatherSource* m_weather;
    CRequestDeadlines m_deadlines;
    std::shared_ptr<CSleepers> m_sleepers = std::make_shared<CSleepers>();
    MHD_Daemon* m_daemon = nullptr;
};

CHttpListener::CHttpListener(const CKnowledgeBoard& board, ListenerLimits limits, Log log, CWeatherSource* weather)
    : m_service(std::make_unique<CService>(board, limits, std::move(log), weather)) {}

CHttpListener::~CHttpListener() = default;

std::string CHttpListener::Listen(const ListenAddress& address) {
    sockaddr_storage storage{};
    if (!SocketAddressOf(address, storage)) return address.host + " is no address of a machine";
    const unsigned flags = storage.ss_family == AF_INET6 ? static_cast<unsigned>(MHD_USE_IPv6) : 0U;
    if (m_service->Start(flags, {MHD_OPTION_SOCK_ADDR, 0, &storage})) return {};
    return "cannot listen on " + address.host + " port " + std::to_string(address.port) + ": " + std::strerror(errno);
}

std::string CHttpListener::Serve(int socket) {
    return m_service->Start(0, {MHD_OPTION_LISTEN_SOCKET, socket, nullptr}) ? "" : "the given socket cannot be served";
}

std::uint16_t CHttpListener::Port() const {
    return m_service->Port();
}

}  // namespace rlx
