#include "app/network_names.h"

#include <QDBusArgument>
#include <QDBusMessage>
#include <QDBusObjectPath>
#include <QDBusVariant>

#include "uikit/qt_text.h"

namespace rlx {

namespace {

constexpr int kPatience = 600;  // milliseconds for all questions together
constexpr qsizetype kMostConnections = 32;
constexpr const char* kService = "org.freedesktop.NetworkManager";
constexpr const char* kManagerPath = "/org/freedesktop/NetworkManager";
constexpr const char* kActive = "org.freedesktop.NetworkManager.Connection.Active";
constexpr const char* kDevice = "org.freedesktop.NetworkManager.Device";

QList<QDBusObjectPath> Paths(const QVariant& value) {
    QList<QDBusObjectPath> paths;
    if (value.canConvert<QDBusArgument>() && value.value<QDBusArgument>().currentSignature() == "ao")
        value.value<QDBusArgument>() >> paths;
    if (value.metaType() == QMetaType::fromType<QList<QDBusObjectPath>>())
        paths = value.value<QList<QDBusObjectPath>>();
    return paths.mid(0, kMostConnections);
}

QString Text(const QVariant& value) {
    return value.metaType() == QMetaType::fromType<QString>() ? value.toString() : QString();
}

}  // namespace

std::u16string CNetworkNames::NameOf(const std::string& interfaceName) {
    if (!m_names) Ask();
    const auto found = m_names->find(interfaceName);
    return found == m_names->end() ? std::u16string() : found->second;
}

void CNetworkNames::Ask() {
    m_names.emplace();
    m_since.start();
    if (!m_bus) m_bus = QDBusConnection::systemBus();
    if (!m_bus->isConnected()) return;
    for (const QDBusObjectPath& connection : Paths(Property(kManagerPath, kService, "ActiveConnections"))) {
        const QString name = Text(Property(connection.path(), kActive, "Id"));
        for (const QDBusObjectPath& device : Paths(Property(connection.path(), kActive, "Devices"))) {
            const QString interface = Text(Property(device.path(), kDevice, "Interface"));
            if (!name.isEmpty()) m_names->emplace(interface.toStdString(), FromQString(name));
        }
    }
}

/// Nothing on any failure, and once the time is over.
QVariant CNetworkNames::Property(const QString& path, const QString& interface, const QString& name) {
    const auto left = kPatience - static_cast<int>(m_since.elapsed());
    if (left <= 0) return {};
    QDBusMessage question = QDBusMessage::createMethodCall(kService, path, "org.freedesktop.DBus.Properties", "Get");
    question.setAutoStartService(false);
    question << interface << name;
    const QDBusMessage answer = m_bus->call(question, QDBus::Block, left);
    if (answer.type() != QDBusMessage::ReplyMessage || answer.arguments().isEmpty()) return {};
    return answer.arguments().first().value<QDBusVariant>().variant();
}

}  // namespace rlx
