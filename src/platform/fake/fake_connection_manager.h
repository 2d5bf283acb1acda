#pragma once

#include <map>
#include <set>
#include <vector>

#include "platform/connection_manager.h"

namespace rlx {

/// A device whose networks a test writes down. Counts what is asked of it.
class CFakeConnectionManager : public IConnectionManager {
public:
    struct Network {
        Guid guid;
        std::u16string description;
        /// What each call of `Establish` answers in turn; the last one again and again.
        std::vector<bool> establishes = {true};
    };

    std::vector<Network> networks;
    std::optional<Guid> probe;
    std::set<std::u16string, std::less<>> providerKeys;

    int establishCalls = 0;
    int held = 0;  ///< established and not yet released
    std::vector<std::chrono::milliseconds> timeouts;

    std::optional<Guid> MapUrl(std::u16string_view url) override;
    std::optional<Destination> EnumDestinations(std::size_t index) override;
    std::optional<ConnectionHandle> Establish(const Guid& destination, std::chrono::milliseconds timeout) override;
    void Release(ConnectionHandle connection) override;
    bool HasProviderKey(std::u16string_view keyPath) override;

private:
    std::set<ConnectionHandle> m_open;
    std::map<std::size_t, std::size_t> m_tried;
    ConnectionHandle m_next = 1;
};

}  // namespace rlx
