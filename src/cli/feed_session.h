#pragma once

#include <memory>
#include <optional>
#include <string>

#include "cli/session.h"
#include "feeds/feed_client.h"
#include "feeds/feed_parameters.h"
#include "platform/connection_manager.h"
#include "platform/posix/http_module.h"

namespace rlx::cli {

/// What a command needs to talk to the feed server.
class CFeedSession {
public:
    /// `url`: address of the feed server. With `--offline` the device is connected to nothing.
    CFeedSession(CSession& session, std::u16string url);

    const std::u16string& Url() const { return m_url; }
    FeedPorts Ports();

private:
    CSession& m_session;
    std::u16string m_url;
    CHttpModule m_http;
    std::unique_ptr<IConnectionManager> m_connections;
};

/// The builders of the parameter strings, with what is known of this device.
CFeedParameters FeedParameters(CSession& session);

/// The address in "adrs.cfg"; nothing when there is none, which was then said.
std::optional<std::u16string> FeedAddress(CSession& session);

}  // namespace rlx::cli
