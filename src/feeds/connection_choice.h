#pragma once

#include <optional>
#include <string>
#include <vector>

#include "platform/connection_manager.h"
#include "platform/message_boxes.h"
#include "shell/registry_store.h"
#include "shell/texts.h"

namespace rlx {

/// The connections that a request has set up; gives all of them back when it goes.
class CHeldConnections {
public:
    explicit CHeldConnections(IConnectionManager& connections) : m_connections(connections) {}
    ~CHeldConnections();
    CHeldConnections(const CHeldConnections&) = delete;
    CHeldConnections& operator=(const CHeldConnections&) = delete;

    /// True when the connection stands.
    bool Establish(const Guid& destination);

private:
    IConnectionManager& m_connections;
    std::vector<ConnectionHandle> m_handles;
};

/// How often the user is asked whether a connection may be used.
enum class Confirmation {
    kEachRequest,
    kOnce,  ///< a yes counts for the following requests too: they are parts of one update
};

/// Picks the network for a request and asks the user whether it may be used.
class CConnectionChooser {
public:
    CConnectionChooser(IConnectionManager& connections, CRegistryStore& settings, IMessageBoxes& boxes,
                       const ITexts& texts, Confirmation confirmation = Confirmation::kEachRequest)
        : m_connections(connections),
          m_settings(settings),
          m_boxes(boxes),
          m_texts(texts),
          m_confirmation(confirmation) {}

    /// The network to use, connected; nothing when there is none or the user said no, which was then reported. Asks
    /// only when not `quiet` and the user has not agreed to this connection for good.
    std::optional<Guid> ChooseConnection(bool quiet, CHeldConnections& held);

    /// Description of the destination with that identity; empty when there is none.
    std::u16string DestinationName(const Guid& destination);

    /// Description of the last destination for which there is an HTTP provider; empty when there is none.
    std::u16string HttpProviderName();

private:
    bool MayUse(const Destination& destination, bool quiet);
    bool Ask(const Destination& destination);
    void ReportNone(const std::optional<Guid>& probe, const std::u16string& list);

    IConnectionManager& m_connections;
    CRegistryStore& m_settings;
    IMessageBoxes& m_boxes;
    const ITexts& m_texts;
    const Confirmation m_confirmation;
    std::optional<Guid> m_agreed;  ///< what the user said yes to last
};

}  // namespace rlx
