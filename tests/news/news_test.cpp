#include "feeds/feed_world.h"
#include "feeds/news_fetch.h"
#include "news/news_page.h"
#include "news/news_zoom.h"
#include "platform/fake/fixed_clock.h"
#include "platform/posix/posix_file_system.h"
#include "shell/resources.h"
#include "support/temp_folder.h"

namespace rlx::test {
namespace {

/// Writes down what the viewer is told.
class CRecordedView : public INewsView {
public:
    std::vector<std::string> said;
    void ClearText() override { said.push_back("clear"); }
    void AddText(const std::u16string& html) override { said.push_back("add " + ToUtf8(html)); }
    void EndOfSource() override { said.push_back("end"); }
    void Navigate(const std::u16string& url) override { said.push_back("go " + ToUtf8(url)); }
};

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

TEST(NewsPage, ShowsThePageOrThatThereIsNone) {
    NewsWorld world;
    CRecordedView view;
    world.settings.WriteDword(RegistryRoot::kLocalMachine, keys::kRoamlytix, names::kNewNews, 1);
    world.page.Show(view);
    EXPECT_EQ(view.said, (std::vector<std::string>{"clear", "add <HTML><TITLE></TITLE>", "add <BODY><P>",
                                                   "add No news...<BR>", "add </BODY></HTML>", "end"}));
    EXPECT_EQ(world.Flags(), "(none) 0 1");
    EXPECT_EQ(world.page.Html(), u"<HTML><TITLE></TITLE><BODY><P>No news...<BR></BODY></HTML>");
    world.files.WriteFile(world.folder.Path() / "news.htm", "\xFFpage");
    view.said.clear();
    world.page.Show(view);
    EXPECT_EQ(view.said,
              (std::vector<std::string>{"clear", "go file://" + (world.folder.Path() / "news.htm").string()}));
    EXPECT_EQ(world.page.Html(), u"\u00FFpage");
    EXPECT_EQ(world.page.State().newsId, u"0");
    EXPECT_TRUE(world.page.State().newsRead);
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

TEST(NewsZoom, TheSquaresHaveStrictBounds) {
    constexpr int kRight = 240;
    constexpr int kBottom = 300;
    const struct {
        const char* name;
        int level, x, y, after;
    } rows[] = {
        {"plus", 2, 227, 287, 3},
        {"left border of plus", 2, 217, 287, 2},
        {"right border of plus", 2, 237, 287, 2},
        {"left border of minus", 2, 194, 287, 2},
        {"right border of minus", 2, 214, 287, 2},
        {"plus at the largest", 4, 227, 287, 4},
        {"minus at the smallest", 0, 204, 287, 0},
    };
    for (const auto& row : rows) {
        CNewsZoom zoom(row.level);
        EXPECT_EQ(zoom.Tap(row.x, row.y, kRight, kBottom), row.after) << row.name;
    }
    EXPECT_EQ(CNewsZoom().Level(), 2);
}

}  // namespace
}  // namespace rlx::test
