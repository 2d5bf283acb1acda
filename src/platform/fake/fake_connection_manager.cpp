#include "platform/fake/fake_connection_manager.h"

#include <algorithm>
#include <cstdlib>

namespace rlx {

std::optional<Guid> CFakeConnectionManager::MapUrl(std::u16string_view) {
    return probe;
}

std::optional<Destination> CFakeConnectionManager::EnumDestinations(std::size_t index) {
    if (index >= networks.size()) return std::nullopt;
    return Destination{networks[index].guid, networks[index].description};
}

std::optional<ConnectionHandle> CFakeConnectionManager::Establish(const Guid& destination,
                                                                  std::chrono::milliseconds timeout) {
    ++establishCalls;
    timeouts.push_back(timeout);
    const auto network = std::find_if(networks.begin(), networks.end(),
                                      [&destination](const Network& each) { return each.guid == destination; });
    if (network == networks.end() || network->establishes.empty()) return std::nullopt;
    std::size_t& tried = m_tried[static_cast<std::size_t>(network - networks.begin())];
    const bool works = network->establishes[std::min(tried++, network->establishes.size() - 1)];
    if (!works) return std::nullopt;
    ++held;
    m_open.insert(m_next);
    return m_next++;
}

void CFakeConnectionManager::Release(ConnectionHandle connection) {
    // A handle released twice, or never given out, is a fault of the caller that no test may miss.
    if (m_open.erase(connection) == 0) std::abort();
    --held;
}

bool CFakeConnectionManager::HasProviderKey(std::u16string_view keyPath) {
    return providerKeys.find(keyPath) != providerKeys.end();
}

}  // namespace rlx
