#pragma once

#include <functional>
#include <string>
#include <vector>

#include "platform/connection_manager.h"

namespace rlx {

/// The machine's own networks: every interface that is up is a destination, and the one with the default route is the
/// way to the Internet. When the feed server is on this machine, there is one destination, loopback, and it carries
/// everything, so that a machine without any network can still be served.
class CMachineConnections : public IConnectionManager {
public:
    /// What to call an interface; empty for "its own name". Lets a network service give the names that people chose.
    using NameProvider = std::function<std::u16string(const std::string& interfaceName)>;

    /// `feedHost`: host of the feed server, as it stands in its address. `loopbackName`: what people read for it.
    CMachineConnections(std::string feedHost, std::u16string loopbackName, NameProvider names = {});

    /// Looks at the machine anew; the other calls answer from that look.
    std::optional<Guid> MapUrl(std::u16string_view url) override;
    std::optional<Destination> EnumDestinations(std::size_t index) override;
    std::optional<ConnectionHandle> Establish(const Guid& destination, std::chrono::milliseconds timeout) override;
    void Release(ConnectionHandle connection) override;
    bool HasProviderKey(std::u16string_view keyPath) override;

private:
    void Look();

    std::string m_feedHost;
    std::u16string m_loopbackName;
    NameProvider m_names;
    std::vector<Destination> m_destinations;
    std::optional<Guid> m_probe;
};

}  // namespace rlx
