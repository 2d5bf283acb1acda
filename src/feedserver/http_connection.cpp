#include "feedserver/http_connection.h"

#include <arpa/inet.h>
#include <netinet/in.h>
#include <sys/socket.h>

#include "feedserver/session_id.h"

namespace rlx {

MHD_Result QueueAnswer(MHD_Connection* connection, const ServedAnswer& answer) {
    MHD_Response* response = MHD_create_response_from_buffer(answer.body.size(), const_cast<char*>(answer.body.data()),
                                                             MHD_RESPMEM_MUST_COPY);  // copied, never written
    if (response == nullptr) return MHD_NO;
    for (const auto& [name, value] : answer.headers)
        MHD_add_response_header(response, name.c_str(), value.c_str());
    const MHD_Result result = MHD_queue_response(connection, answer.status, response);
    MHD_destroy_response(response);
    return result;
}

std::string SessionOf(MHD_Connection* connection) {
    const char* known = MHD_lookup_connection_value(connection, MHD_COOKIE_KIND, "JSESSIONID");
    return known != nullptr && IsSessionId(known) ? known : NewSessionId();
}

std::string ClientOf(MHD_Connection* connection) {
    const MHD_ConnectionInfo* info = MHD_get_connection_info(connection, MHD_CONNECTION_INFO_CLIENT_ADDRESS);
    char text[INET6_ADDRSTRLEN] = "?";
    if (info != nullptr && info->client_addr->sa_family == AF_INET)
        inet_ntop(AF_INET, &reinterpret_cast<const sockaddr_in*>(info->client_addr)->sin_addr, text, sizeof text);
    if (info != nullptr && info->client_addr->sa_family == AF_INET6)
        inet_ntop(AF_INET6, &reinterpret_cast<const sockaddr_in6*>(info->client_addr)->sin6_addr, text, sizeof text);
    return text;
}

int SocketOf(MHD_Connection* connection) {
    return MHD_get_connection_info(connection, MHD_CONNECTION_INFO_CONNECTION_FD)->connect_fd;
}

}  // namespace rlx
