#include "app/network_names.h"

#include <QDBusMessage>
#include <QDBusObjectPath>
#include <QDBusServer>
#include <QDBusVariant>
#include <QDBusVirtualObject>

namespace rlx {
namespace {

using Paths = QList<QDBusObjectPath>;

/// A network service by script: answers questions for properties; says nothing at all to those it is told to ignore.
class CScriptedService : public QDBusVirtualObject {
public:
    QMap<QString, QVariant> properties;  ///< by "path name"
    QStringList ignored;

    QString introspect(const QString& /*path*/) const override { return {}; }
    bool handleMessage(const QDBusMessage& message, const QDBusConnection& connection) override {
        const QString what = message.path() + " " + message.arguments().value(1).toString();
        message.setDelayedReply(true);
        if (ignored.contains(what)) return true;
        const bool known = message.member() == "Get" && properties.contains(what);
        const QVariant value = QVariant::fromValue(QDBusVariant(properties.value(what)));
        connection.send(known ? message.createReply(value) : message.createErrorReply(QDBusError::InvalidArgs, what));
        return true;
    }
};

/// The service on a thread of its own, and a connection to it without a bus.
class NetworkNames : public ::testing::Test {
protected:
    static constexpr const char* kManager = "/org/freedesktop/NetworkManager";

    NetworkNames() {
        qRegisterMetaType<QDBusConnection>();
        const auto set = [this](const QString& what, const QVariant& value) { service.properties[what] = value; };
        set(QString(kManager) + " ActiveConnections",
            QVariant::fromValue(Paths{QDBusObjectPath("/a/1"), QDBusObjectPath("/a/2")}));
        set("/a/1 Id", QStringLiteral("Hotel Wi-Fi"));
        set("/a/1 Devices", QVariant::fromValue(Paths{QDBusObjectPath("/d/1")}));
        set("/a/2 Id", QStringLiteral("Dock"));
        set("/a/2 Devices", QVariant::fromValue(Paths{QDBusObjectPath("/d/2")}));
        set("/d/1 Interface", QStringLiteral("wlan0"));
        set("/d/2 Interface", QStringLiteral("eth0"));
        service.moveToThread(&thread);
        thread.start();
        QMetaObject::invokeMethod(
            &service, [this] { Serve(); }, Qt::BlockingQueuedConnection);
    }

    ~NetworkNames() override {
        QDBusConnection::disconnectFromPeer("names_client");
        QMetaObject::invokeMethod(
            &service, [this] { server.reset(); }, Qt::BlockingQueuedConnection);
        QDBusConnection::disconnectFromPeer("names_server");
        thread.quit();
        thread.wait();
    }

    void Serve() {
        server = std::make_unique<QDBusServer>();
        QObject::connect(server.get(), &QDBusServer::newConnection, &service, [this](QDBusConnection connection) {
            connection.registerVirtualObject("/", &service, QDBusConnection::SubPath);
            peers.push_back(connection);
        });
        address = server->address();
    }

    QDBusConnection Connection() { return QDBusConnection::connectToPeer(address, "names_client"); }

    CScriptedService service;
    QThread thread;
    std::unique_ptr<QDBusServer> server;
    QList<QDBusConnection> peers;
    QString address;
};

TEST_F(NetworkNames, ActiveConnectionsNameTheirInterfaces) {
    CNetworkNames names(Connection());
    EXPECT_EQ(names.NameOf("wlan0"), u"Hotel Wi-Fi");
    EXPECT_EQ(names.NameOf("eth0"), u"Dock");
    EXPECT_EQ(names.NameOf("tun0"), u"");
}

TEST_F(NetworkNames, AnswersOfAnotherKindGiveNoName) {
    service.properties["/a/1 Devices"] = QStringLiteral("/d/1");
    service.properties["/a/2 Id"] = 7;
    service.properties.remove("/d/2 Interface");
    CNetworkNames names(Connection());
    EXPECT_EQ(names.NameOf("wlan0"), u"");
    EXPECT_EQ(names.NameOf("eth0"), u"");
}

TEST_F(NetworkNames, AServiceThatHangsIsLeftAlone) {
    service.ignored << QString(kManager) + " ActiveConnections";
    CNetworkNames names(Connection());
    EXPECT_EQ(names.NameOf("wlan0"), u"");
    service.ignored.clear();
    EXPECT_EQ(names.NameOf("wlan0"), u"") << "nobody waits twice";
}

TEST(NetworkNamesWithoutBus, ThereAreNone) {
    EXPECT_EQ(CNetworkNames(QDBusConnection("nowhere")).NameOf("eth0"), u"");
}

}  // namespace
}  // namespace rlx
