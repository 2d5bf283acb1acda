#include "platform/posix/machine_connections.h"

#include <algorithm>
#include <fstream>
#include <utility>

#include "base/text.h"
#include "platform/loopback_host.h"
#include "platform/posix/network_table.h"

namespace rlx {

namespace {

/// The kernel's tables are short; a limit keeps a strange one from filling the memory.
std::string KernelTable(const char* path) {
    constexpr std::size_t kLimit = 1 << 20;
    std::ifstream file(path, std::ios::binary);
    std::string text;
    char block[4096];
    while (text.size() < kLimit && (file.read(block, sizeof block), file.gcount() > 0))
        text.append(block, static_cast<std::size_t>(file.gcount()));
    return text;
}

std::string OutwardInterface() {
    std::string name = DefaultRouteInterface(KernelTable("/proc/net/route"));
    return name.empty() ? DefaultRouteInterface6(KernelTable("/proc/net/ipv6_route")) : name;
}

}  // namespace

CMachineConnections::CMachineConnections(std::string feedHost, std::u16string loopbackName, NameProvider names)
    : m_feedHost(std::move(feedHost)), m_loopbackName(std::move(loopbackName)), m_names(std::move(names)) {
    Look();
}

void CMachineConnections::Look() {
    m_destinations.clear();
    m_probe.reset();
    if (IsLoopbackHost(m_feedHost)) {
        m_destinations.push_back({InterfaceGuid("lo"), m_loopbackName});
        m_probe = InterfaceGuid("lo");
        return;
    }
    const std::string outward = OutwardInterface();
    for (const std::string& name : ConnectedInterfaces()) {
        std::u16string description = m_names ? m_names(name) : std::u16string();
        if (description.empty()) description = FromUtf8(name);
        m_destinations.push_back({InterfaceGuid(name), std::move(description)});
        if (name == outward) m_probe = InterfaceGuid(name);
    }
}

std::optional<Guid> CMachineConnections::MapUrl(std::u16string_view) {
    Look();
    return m_probe;
}

std::optional<Destination> CMachineConnections::EnumDestinations(std::size_t index) {
    if (index >= m_destinations.size()) return std::nullopt;
    return m_destinations[index];
}

std::optional<ConnectionHandle> CMachineConnections::Establish(const Guid& destination, std::chrono::milliseconds) {
    const auto found = std::find_if(m_destinations.begin(), m_destinations.end(),
                                    [&destination](const Destination& each) { return each.guid == destination; });
    if (found == m_destinations.end()) return std::nullopt;
    return static_cast<ConnectionHandle>(found - m_destinations.begin());
}

void CMachineConnections::Release(ConnectionHandle) {
    // The machine's interfaces are not ours to take down.
}

bool CMachineConnections::HasProviderKey(std::u16string_view keyPath) {
    return m_probe && keyPath.ends_with(u"HTTP-{" + GuidText(*m_probe) + u"}");
}

}  // namespace rlx
