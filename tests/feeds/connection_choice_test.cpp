#include "feeds/connection_choice.h"

#include <algorithm>

#include "feeds/feed_world.h"

namespace rlx::test {
namespace {

constexpr Guid kHomeNet{0x1, 0x2, 0x30, {0x04, 0x50, 0, 1, 2, 3, 4, 0xFF}};
constexpr Guid kHotel{0xABCDEF01, 0xFFFF, 0x0A0A, {1, 2, 3, 4, 5, 6, 7, 8}};

const std::u16string kProviders[] = {
    u"SOFTWARE\\Microsoft\\ConnMgr\\Providers\\{EF097F4C-DC4B-4c98-8FF6-AEF805DC0E8E}\\HTTP-{",
    u"Comm\\ConnMgr\\Providers\\{EF097F4C-DC4B-4c98-8FF6-AEF805DC0E8E}\\HTTP-{"};

using Networks = std::vector<CFakeConnectionManager::Network>;

TEST(ConnectionChoice, FollowsTheRules) {
    const std::string cannot = "Error!|!|Cannot update.\n\nPlease check your Internet connection.";
    const std::string hint =
        "\n\nTo configure your Internet Network, please go to:\nStart> Settings> Connections> Connections> Advanced> "
        "Network select";
    const std::string list =
        "Error!|-|Cannot update.\n\nPlease try to set (one of) the following active connection(s) as your default "
        "Internet connection under Start> Settings> Connections> Connections> Advanced> Network select: \n\n";
    const std::string isp = "Confirmation|?|The connection <ISP: > will be used." + hint;
    struct Row {
        const char* name;
        Networks networks;
        std::optional<Guid> probe;
        bool chosen;
        std::vector<std::string> boxes;
        bool quiet = false;
        BoxAnswer answer = BoxAnswer::kYes;
    };
    const Row rows[] = {
        {"no network at all", {}, kNetworkInternet, false, {cannot}},
        {"the Internet does not connect", {{kNetworkInternet, u"ISP", {false}}}, kNetworkInternet, false, {cannot}},
        {"yes", {{kNetworkInternet, u"ISP"}}, kNetworkInternet, true, {isp}},
        {"no", {{kNetworkInternet, u"ISP"}}, kNetworkInternet, false, {isp, cannot}, false, BoxAnswer::kNo},
        {"quiet asks nothing", {{kNetworkInternet, u"ISP"}}, kNetworkInternet, true, {}, true, BoxAnswer::kNo},
        {"no hint", {{kHotel, u"Hotel"}}, kHotel, true, {"Confirmation|?|The connection <Hotel: > will be used."}},
        {"only the second answer counts: it fails", {{kHotel, u"Hotel", {true, false}}}, kHotel, false, {cannot}},
        {"only the second answer counts: it works", {{kHotel, u"Hotel", {false, true}}}, kHotel, true, {}, true},
        {"others are proposed, standard ones and dead ones are not",
         {{kHotel, u"Hotel"}, {kNetworkWork, u"Office"}, {kHomeNet, u"Home"}, {Guid{}, u"dead", {false}}},
         kNetworkInternet,
         false,
         {list + "- Hotel\n- Home\n"},
         true},
    };
    for (const auto& row : rows) {
        SCOPED_TRACE(row.name);
        FeedWorld world;
        world.connections.networks = row.networks;
        world.connections.probe = row.probe;
        world.boxes.always = row.answer;
        CConnectionChooser chooser(world.connections, world.settings, world.boxes, world.texts);
        {
            CHeldConnections held(world.connections);
            const std::optional<Guid> network = chooser.ChooseConnection(row.quiet, held);
            EXPECT_EQ(network, row.chosen ? row.probe : std::nullopt);
        }
        std::vector<std::string> lines;
        for (const MessageBox& box : world.boxes.shown)
            lines.push_back(BoxLine(box));
        EXPECT_EQ(lines, row.boxes);
        EXPECT_EQ(world.connections.establishCalls, 2 * static_cast<int>(row.networks.size()));
        EXPECT_EQ(world.connections.held, 0);
        for (const std::chrono::milliseconds timeout : world.connections.timeouts)
            EXPECT_EQ(timeout.count(), 30000);
    }
}

TEST(ConnectionChoice, OneYesIsEnoughForAnUpdateOfSeveralRequests) {
    const auto questions = [](Confirmation confirmation, BoxAnswer answer) {
        FeedWorld world;
        world.boxes.always = answer;
        CConnectionChooser chooser(world.connections, world.settings, world.boxes, world.texts, confirmation);
        for (int request = 0; request < 3; ++request) {
            CHeldConnections held(world.connections);
            chooser.ChooseConnection(false, held);
        }
        return std::ranges::count(world.boxes.shown, BoxButtons::kYesNo, &MessageBox::buttons);
    };
    EXPECT_EQ(questions(Confirmation::kOnce, BoxAnswer::kYes), 1);
    EXPECT_EQ(questions(Confirmation::kOnce, BoxAnswer::kNo), 3);
    EXPECT_EQ(questions(Confirmation::kEachRequest, BoxAnswer::kYes), 3);
}

TEST(ConnectionChoice, AsksNoMoreForAConnectionThatWasAgreedTo) {
    FeedWorld world;
    CConnectionChooser chooser(world.connections, world.settings, world.boxes, world.texts);
    const auto asks = [&](const Guid& network, BoxAnswer answer, bool tick) {
        world.connections.networks = {{network, u"N"}};
        world.connections.probe = network;
        world.boxes.always = answer;
        world.boxes.check = tick;
        world.boxes.shown.clear();
        CHeldConnections held(world.connections);
        chooser.ChooseConnection(false, held);
        return !world.boxes.shown.empty();
    };
    EXPECT_TRUE(asks(kHotel, BoxAnswer::kNo, true));
    EXPECT_TRUE(asks(kHotel, BoxAnswer::kYes, false));
    EXPECT_TRUE(asks(kHotel, BoxAnswer::kYes, true));
    EXPECT_EQ(world.boxes.checkText, u"Don't ask again for this connection");
    EXPECT_FALSE(asks(kHotel, BoxAnswer::kNo, false));
    EXPECT_TRUE(asks(kHomeNet, BoxAnswer::kYes, true));
    EXPECT_FALSE(asks(kHomeNet, BoxAnswer::kNo, false));
    EXPECT_FALSE(asks(kHotel, BoxAnswer::kNo, false));
}

TEST(ConnectionChoice, TheLastProviderFoundGivesTheName) {
    FeedWorld world;
    world.connections.networks = {{kHomeNet, u"Home"}, {kHotel, u"Hotel"}, {kNetworkWork, u"Work"}};
    CConnectionChooser chooser(world.connections, world.settings, world.boxes, world.texts);
    EXPECT_EQ(chooser.HttpProviderName(), u"");
    // A provider that writes leading zeros is not found.
    world.connections.providerKeys = {kProviders[0] + u"00000001-0002-0030-0450-0001020304FF}"};
    EXPECT_EQ(chooser.HttpProviderName(), u"");
    world.connections.providerKeys = {kProviders[0] + u"ABCDEF01-FFFF-A0A-12-345678}",
                                      kProviders[1] + u"1-2-30-450-01234FF}"};
    EXPECT_EQ(chooser.HttpProviderName(), u"Hotel");
    EXPECT_EQ(chooser.DestinationName(kHomeNet), u"Home");
    EXPECT_EQ(chooser.DestinationName(kNetworkWap), u"");
}

}  // namespace
}  // namespace rlx::test
