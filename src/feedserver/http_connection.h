#pragma once

#include <microhttpd.h>

#include <string>

#include "feedserver/served_answer.h"

namespace rlx {

/// Hands an answer over to be sent.
MHD_Result QueueAnswer(MHD_Connection* connection, const ServedAnswer& answer);

/// The session that the client names, or a new one.
std::string SessionOf(MHD_Connection* connection);

/// Address of the client in figures; "?" when it is not known.
std::string ClientOf(MHD_Connection* connection);

int SocketOf(MHD_Connection* connection);

}  // namespace rlx
