#include "feeds/feed_world.h"
#include "feeds/news_fetch.h"
#include "news/news_page.h"
#include "platform/fake/fixed_clock.h"
#include "platform/posix/posix_file_system.h"
#include "shell/resources.h"
#include "support/temp_folder.h"

namespace rlx::test {
namespace {

struct NewsWorld : FeedWorld {
    std::string Page() { return files.ReadFile(folder.Path() / "news.htm", 1 << 20).value_or("(none)"); }
    std::string Flags() {
        return Text(names::kNewsId) + " " + std::to_string(Flag(names::kNewNews)) + " " +
               std::to_string(Flag(names::kNewsRead));
    }

    CTempFolder folder;
    CPosixFileSystem files;
    CFixedClock clock{{{2026, 11, 22}, 12, 0, 0, 0}};
    CNewsFetch fetch{ports, files, clock, folder.Path()};
    CNewsPage page{registry, files, texts, folder.Path()};
};

TEST(NewsFetch, KeepsThePageAndTheFlags) {
    NewsWorld world;
    const std::string html = "<p>caf\xE9\r\n\n\0 &euro;</p>";
    CScriptedServer server({{FeedReplyBytes(html, "1005", "12")},
                            {FeedReplyBytes("", "1007", "12")},
                            {"HTTP/1.1 200 OK\r\nnewsid: 13\r\nServerMSG: 1005\r\nContent-Length: 9\r\n\r\nab"}});
    EXPECT_TRUE(world.fetch.Fetch(server.Url(), u"").saved);
    EXPECT_EQ(world.Page(), html);
    EXPECT_EQ(world.Flags(), "12 -1 0");
    EXPECT_EQ(NewsOriginText(world.page.State(), CResources()), u"Fetched on 22/11/2026, Source: 127.0.0.1");
    world.clock.Set({{2026, 11, 30}, 12, 0, 0, 0});
    EXPECT_EQ(world.Messages(), (std::vector<std::string>{"Roamlytix|i|You have News"}));
    EXPECT_FALSE(world.fetch.Fetch(server.Url(), u"").saved);
    EXPECT_EQ(world.Flags(), "12 0 0");
    EXPECT_FALSE(world.fetch.Fetch(server.Url(), u"").saved);
    EXPECT_EQ(world.Flags(), "12 0 0") << "a page that was cut off is asked for again";
    EXPECT_EQ(world.Page(), html);
    EXPECT_EQ(world.page.State().fetched, (Date{2026, 11, 22})) << "the day of the page that is there";
    EXPECT_EQ(world.boxes.shown.size(), 3U);
}

TEST(NewsFetch, APageThatCannotBeSavedIsStillNew) {
    NewsWorld world;
    world.settings.WriteString(RegistryRoot::kLocalMachine, keys::kRoamlytix, names::kNewsId, u"11");
    CScriptedServer server({{FeedReplyBytes("page", "1005", "12")}});
    CNewsFetch fetch(world.ports, world.files, world.clock, world.folder.Path() / "gone");
    EXPECT_FALSE(fetch.Fetch(server.Url(), u"").saved);
    EXPECT_EQ(world.Messages(), (std::vector<std::string>{"Error!|!|The news page could not be saved."}));
    EXPECT_EQ(world.Flags(), "11 -1 -1");
}

TEST(NewsPage, GrowsOldAfterThreeDays) {
    const struct {
        const char* name;
        std::optional<Date> fetched;
        bool stale;
    } rows[] = {{"today", Date{2026, 11, 22}, false},
                {"four days ago", Date{2026, 11, 18}, true},
                {"across the date line", Date{2026, 11, 23}, false},
                {"a clock that was wrong", Date{2026, 11, 24}, true},
                {"nobody knows", std::nullopt, true}};
    for (const auto& row : rows)
        EXPECT_EQ(AreNewsStale({u"1", false, true, row.fetched, u""}, {2026, 11, 22}), row.stale) << row.name;
}

}  // namespace
}  // namespace rlx::test
