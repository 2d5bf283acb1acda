#pragma once

#include <QDBusConnection>
#include <QElapsedTimer>
#include <map>
#include <optional>
#include <string>

namespace rlx {

/// The names that people gave to their networks ("Hotel Wi-Fi"), as NetworkManager tells them over D-Bus. Asks at the
/// first question and never longer than a moment in all; without D-Bus or NetworkManager there are no names.
/// User-interface thread.
class CNetworkNames {
public:
    /// `bus`: where to ask; nothing: the system's bus, connected to at the first question.
    explicit CNetworkNames(std::optional<QDBusConnection> bus = std::nullopt) : m_bus(std::move(bus)) {}

    /// The name of the active connection on an interface; empty when there is none.
    std::u16string NameOf(const std::string& interfaceName);

private:
    void Ask();
    QVariant Property(const QString& path, const QString& interface, const QString& name);

    std::optional<QDBusConnection> m_bus;
    std::optional<std::map<std::string, std::u16string>> m_names;
    QElapsedTimer m_since;
};

}  // namespace rlx
