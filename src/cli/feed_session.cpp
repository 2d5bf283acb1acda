#include "cli/feed_session.h"

#include "base/text.h"
#include "feeds/feed_address.h"
#include "feeds/http_url.h"
#include "feeds/text_ids.h"
#include "platform/offline_connection_manager.h"
#include "platform/posix/machine_connections.h"
#include "platform/posix/machine_info.h"
#include "shell/program_paths.h"

namespace rlx::cli {

namespace {

std::unique_ptr<IConnectionManager> ConnectionsTo(CSession& session, std::u16string_view url) {
    if (session.Options().offline) return std::make_unique<COfflineConnectionManager>();
    const std::optional<HttpUrl> address = ParseHttpUrl(url);
    return std::make_unique<CMachineConnections>(address ? address->host : std::string(),
                                                 session.Text(kTextLoopbackNetwork));
}

}  // namespace

CFeedSession::CFeedSession(CSession& session, std::u16string url)
    : m_session(session),
      m_url(std::move(url)),
      m_http(ProgramFolders({}).executableFolder),
      m_connections(ConnectionsTo(session, m_url)) {}

FeedPorts CFeedSession::Ports() {
    return {m_http, *m_connections, m_session.Registry(), m_session.Boxes(), m_session.Texts()};
}

CFeedParameters FeedParameters(CSession& session) {
    const MachineInfo machine = ReadMachineInfo();
    FeedDevice device;
    device.osMajor = machine.osMajor;
    device.osMinor = machine.osMinor;
    device.processor = machine.processor;
    device.appVersion = Widen(RLX_VERSION);
    return {session.Registry(), device};
}

std::optional<std::u16string> FeedAddress(CSession& session) {
    std::u16string address = FeedServerAddress(session.Files(), session.Folder().Root());
    if (!address.empty()) return address;
    session.Fail(session.Text(kTextFeedServerMissing));
    return std::nullopt;
}

}  // namespace rlx::cli
