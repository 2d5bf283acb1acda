#include "platform/posix/machine_connections.h"

#include <set>

#include "platform/loopback_host.h"
#include "platform/posix/network_table.h"

namespace rlx {
namespace {

TEST(MachineConnections, FindsTheDefaultRoute) {
    const std::string head = "Iface\tDestination\tGateway \tFlags\tRefCnt\tUse\tMetric\tMask\t\tMTU\tWindow\tIRTT\n";
    const std::string wlan = "wlan0\t00000000\t0100A8C0\t0003\t0\t0\t600\t00000000\t0\t0\t0\n";
    const std::string eth = "eth0\t00000000\t0101A8C0\t0003\t0\t0\t100\t00000000\t0\t0\t0\n";
    const struct {
        const char* name;
        std::string table;
        std::string interface;
    } rows[] = {
        {"the head alone", head, ""},
        {"the smaller metric wins", head + wlan + eth, "eth0"},

        {"a network route is no default", head + "eth0\t0000A8C0\t00000000\t0001\t0\t0\t100\t00FFFFFF\t0\t0\t0\n", ""},
        {"half of the Internet is no default", head + "tun0\t00000000\t0\t0003\t0\t0\t0\t00000080\t0\t0\t0\n", ""},
        {"a route that is down", head + "eth0\t00000000\t0101A8C0\t0002\t0\t0\t100\t00000000\t0\t0\t0\n", ""},
        {"a route that rejects", head + "eth0\t00000000\t0101A8C0\t0203\t0\t0\t100\t00000000\t0\t0\t0\n", ""},
        {"cut off", head + eth.substr(0, 30), ""},

    };
    for (const auto& row : rows)
        EXPECT_EQ(DefaultRouteInterface(row.table), row.interface) << row.name;
    const std::string zeros(32, '0');
    const std::string tail = " " + zeros + " 00 " + zeros + " 00000400 00000001 00000000 ";
    EXPECT_EQ(DefaultRouteInterface6(zeros + " 00 " + zeros + " 00 fe80 00000400 1 0 00000003     eth1\n"), "eth1");
    EXPECT_EQ(DefaultRouteInterface6(zeros + " 00" + tail + "00200200       lo\n"), "");
}

TEST(MachineConnections, AServerOnThisMachineNeedsNoNetwork) {
    for (const char* host : {"127.0.0.1", "localhost", "LocalHost", "::1", "feed.localhost", "127.255.0.9"}) {
        CMachineConnections connections(host, u"Loopback");
        const std::optional<Guid> probe = connections.MapUrl(u"http://www.example.org/");
        ASSERT_TRUE(probe) << host;
        ASSERT_TRUE(connections.EnumDestinations(0)) << host;
        EXPECT_EQ(connections.EnumDestinations(0)->guid, probe);
        EXPECT_EQ(connections.EnumDestinations(0)->description, u"Loopback");
        EXPECT_FALSE(connections.EnumDestinations(1));
        EXPECT_TRUE(connections.Establish(*probe, std::chrono::seconds(30)));
        EXPECT_TRUE(connections.HasProviderKey(u"Comm\\X\\HTTP-{" + GuidText(*probe) + u"}"));
        EXPECT_FALSE(connections.HasProviderKey(u"Comm\\X\\HTTP-{1-2-3-45-678}"));
    }
    for (const char* host : {"", "127.0.0.1.example.org", "127.0.0", "127.0.0.256", "127..0.1", "1270.0.0.1", "::2",
                             "localhost.example.org", "notlocalhost", "127.0.0.1."})
        EXPECT_FALSE(IsLoopbackHost(host)) << host;
}

TEST(MachineConnections, InterfacesAreDestinationsOfTheirOwn) {
    const auto names = [](const std::string& name) { return u"Net " + std::u16string(name.begin(), name.end()); };
    CMachineConnections connections("feeds.example.org", u"Loopback", names);
    const std::vector<std::string> interfaces = ConnectedInterfaces();
    std::set<std::u16string> identities;
    for (std::size_t i = 0; i < interfaces.size(); ++i) {
        ASSERT_TRUE(connections.EnumDestinations(i));
        EXPECT_EQ(connections.EnumDestinations(i)->description, names(interfaces[i]));
        identities.insert(GuidText(connections.EnumDestinations(i)->guid));
    }
    EXPECT_FALSE(connections.EnumDestinations(interfaces.size()));
    EXPECT_EQ(identities.size(), interfaces.size());
    EXPECT_EQ(identities.count(GuidText(InterfaceGuid("lo"))), 0U);
    EXPECT_FALSE(connections.Establish(InterfaceGuid("no such interface"), std::chrono::seconds(1)));
}

}  // namespace
}  // namespace rlx
