#include "base/iso_day.h"
#include "base/text.h"
#include "feedserver/news_item.h"
#include "feedserver/rates_check.h"
#include "feedserver/rates_table.h"
#include "feedserver/refresher.h"
#include "feedserver/server_config.h"
#include "platform/posix/posix_file_system.h"
#include "support/temp_folder.h"

namespace rlx::test {
namespace {

std::string Ecb(const std::string& cubes) {
    return "<?xml version=\"1.0\"?><gesmes:Envelope xmlns:gesmes=\"g\" xmlns=\"e\"><Cube>" + cubes +
           "</Cube></gesmes:Envelope>";
}

std::string Daily(const std::string& day, double euro, int others = 20) {
    std::string text = "{\"date\": \"" + day + "\", \"usd\": {\"eur\": " + std::to_string(euro);
    for (int i = 0; i < others; ++i)
        text += std::string(", \"a") + static_cast<char>('a' + i) + "z\": 2";
    return text + "}}";
}

TEST(RateSources, ReadWhatIsGoodAndNameWhatIsWrong) {
    const std::string day = "<Cube time='2026-11-20'><Cube currency='USD' rate='1.25'/>";
    const struct {
        const char* name;
        std::string bytes;
        bool xml;
        std::string fault;  ///< empty: good
        std::size_t count = 0;
        double euro = 0;
    } rows[] = {
        {"the bank's table", Ecb(day + "<Cube currency='JPY' rate='200'/></Cube>"), true, "", 3, 0.8},
        {"the first of many days", Ecb(day + "</Cube><Cube time='2026-11-19'><Cube currency='USD' rate='2'/></Cube>"),
         true, "", 2, 0.8},
        {"a code that is none", Ecb(day + "<Cube currency='J_#' rate='1'/></Cube>"), true, "", 2, 0.8},
        {"no dollar", Ecb("<Cube time='2026-11-20'><Cube currency='JPY' rate='1'/></Cube>"), true,
         "no rate of the US dollar"},
        {"cut off", Ecb(day).substr(0, 150), true, "not XML: Start-end tags mismatch"},
        {"an external entity is not looked up", "<!DOCTYPE x [<!ENTITY f SYSTEM 'file:///etc/passwd'>]><x>&f;</x>",
         true, "no Cube with a time"},
        {"the daily table", Daily("2026-11-20", 0.9), false, "", 21, 0.9},
        {"entries of other kinds are passed over",
         R"({"date":"2026-11-20","usd":{"eur":0.5,"toolong":1,"x_y":1,"abc":"1","abd":-1,"abe":0,"abf":null}})", false,
         "", 1, 0.5},
        {"a web page", "<html></html>", false, "not a JSON object"},
        {"too deep", std::string(100'000, '['), false, "not a JSON object"},
    };
    for (const auto& row : rows) {
        SCOPED_TRACE(row.name);
        const ParsedRates parsed = row.xml ? ParseEcbRates(row.bytes) : ParseDailyRates(row.bytes);
        EXPECT_EQ(parsed.fault, row.fault);
        ASSERT_EQ(parsed.table.has_value(), row.fault.empty());
        if (!parsed.table) continue;
        EXPECT_EQ(parsed.table->perDollar.size(), row.count);
        EXPECT_DOUBLE_EQ(parsed.table->perDollar.at("EUR"), row.euro);
        EXPECT_EQ(Narrow(IsoDay(parsed.table->date)), "2026-11-20");
    }
}

TEST(RateSources, RatesAreWrittenPlainly) {
    const std::vector<std::pair<double, std::string>> rows = {
        {1, "1"},           {0.86206896551, "0.86206897"}, {155.60344827, "155.60345"}, {1e-9, "0.000000001"},
        {100000, "100000"}, {123456789.123, "123456789"},  {1.5e-7, "0.00000015"},      {0, "0"},
    };
    for (const auto& [rate, text] : rows)
        EXPECT_EQ(RateText(rate), text);
}

TEST(RateSources, ACheckComesBeforeBelief) {
    const Date today{2026, 11, 22};
    const RatesTable last = *ParseDailyRates(Daily("2026-11-20", 0.9)).table;
    const struct {
        std::string json;
        std::string fault;
        std::size_t marks = 0;
    } rows[] = {
        {Daily("2026-11-21", 0.91), ""},
        {Daily("2026-11-24", 0.91), "rates of 2026-11-24, which is in the future"},
        {Daily("2026-10-01", 0.91), "rates of 2026-10-01, which is too long ago"},
        {Daily("2026-11-19", 0.91), "rates of 2026-11-19, older than those of 2026-11-20"},
        {Daily("2026-11-21", 0.91, 13), "only 14 rates, 15 are expected"},
        {Daily("2026-11-21", 5e12), "the rate of EUR is out of range"},
        {Daily("2026-11-21", 1.36), "", 1},
    };
    for (const auto& row : rows) {
        const RatesCheck check = CheckRates(*ParseDailyRates(row.json).table, &last, today);
        EXPECT_EQ(check.fault, row.fault);
        EXPECT_EQ(check.marks.size(), row.marks) << row.json;
    }
}

TEST(NewsSources, AFeedBecomesOnePlainPage) {
    const ParsedNews news = ParseRssNews(
        "<rss><channel><title>T &amp; T</title><item><title>Caf\xC3\xA9 \xF0\x9F\x98\x80</title>"
        "<link>https://a.example/?x=1&amp;y=2</link><pubDate>Mon</pubDate>"
        "<description><![CDATA[<p onclick='x'>Hello <script>x</script> &lt;</p>]]></description></item>"
        "<item><title>Bad</title><link>javascript:alert(1)</link></item></channel></rss>");
    ASSERT_TRUE(news.item) << news.fault;
    EXPECT_EQ(news.item->html,
              "<HTML><HEAD><TITLE>T &#38; T</TITLE></HEAD>\n<BODY><H2>T &#38; T</H2>\n"
              "<H3><A HREF=\"https://a.example/?x=1&#38;y=2\">Caf&#233; &#128512;</A></H3>\n<P><I>Mon</I></P>\n"
              "<P>Hello x &#38;lt;</P>\n<H3>Bad</H3>\n<P></P>\n</BODY></HTML>\n");
    std::string many = "<rss><channel><title>T</title>";
    for (int i = 0; i < 200; ++i)
        many += "<item><title>x</title><description>" + std::string(5000, 'y') + "</description></item>";
    const ParsedNews big = ParseRssNews(many + "</channel></rss>");
    ASSERT_TRUE(big.item);
    EXPECT_LT(big.item->html.size(), kMaxNewsBytes);
    EXPECT_EQ(ParseRssNews("<html></html>").fault, "no rss channel");
    EXPECT_FALSE(ParseRssNews(many).item);
}

TEST(ServerConfig, NamesWhatIsWrong) {
    const std::pair<const char*, const char*> rows[] = {
        {"[]", "not a JSON object"},
        {"{\"rate\": 1}", "rate is not known; rates, news, weather, everyMinutes, keep"},
        {R"({"weather": {"from": "http://a/{latitude}"}})",
         "weather.kind: \"\" is not known; open-meteo, folder, sample, none"},
        {R"({"weather": {"kind": "open-meteo", "from": "http://a/{latitude}"}})", "weather.from lacks {longitude}"},
        {R"({"weather": {"kind": "open-meteo", "from": "/a/{latitude}{longitude}"}})",
         "weather.from is no web address"},
        {R"({"weather": {"kind": "folder", "sample": 1}})", "weather.sample is neither true nor false"},
        {"{\"rates\": [{\"kind\": \"rss\", \"from\": \"a\"}]}", "rates[0].kind: \"rss\" is not known; ecb, daily"},
        {"{\"rates\": [{\"kind\": 1}]}", "rates[0].kind is no text"},
        {"{\"news\": {\"kind\": \"folder\", \"form\": \"a\"}}", "news.form is not known"},
        {"{\"everyMinutes\": 0}", "everyMinutes must be a whole number from 1 to 10080"},
        {"{\"keep\": 5}", "keep is no text"},
    };
    for (const auto& [json, fault] : rows)
        EXPECT_EQ(ParseServerConfig(json).fault, fault) << json;
    const ParsedConfig good = ParseServerConfig(
        R"({"rates":[{"kind":"ecb","from":"http://a/"}],"news":{"kind":"rss","from":"b"},"everyMinutes":5,"keep":"k"})");
    ASSERT_TRUE(good.config) << good.fault;
    EXPECT_EQ(good.config->rates.at(0).kind, SourceKind::kEcbRates);
    EXPECT_EQ(good.config->every.count(), 5);
    EXPECT_EQ(ParseListenAddress("[::1]:80")->host, "::1");
    for (const char* bad : {"", "a", ":1", "a:", "a:65536", "a:x"})
        EXPECT_FALSE(ParseListenAddress(bad)) << bad;
}

TEST(Refresher, KeepsTheLastGoodAnswer) {
    CTempFolder folder;
    CPosixFileSystem files;
    folder.Put("data/currs.lst", "2\nEUR_Euro_0.5#OLD_Old_7#");
    folder.Put("data/currs.date", "2026-09-29\n");
    ServerConfig config;
    config.rates = {{SourceKind::kDailyRates, (folder / "rates.json").string()}};
    config.news = FeedSource{SourceKind::kNewsFolder, (folder / "pages").string()};
    config.keep = folder / "kept";
    CKnowledgeBoard board;
    std::vector<std::string> log;
    const Date today{2026, 11, 22};
    const auto start = [&] {
        auto refresher = std::make_unique<CRefresher>(files, board, config, folder / "data",
                                                      [&log](const std::string& line) { log.push_back(line); });
        refresher->Begin();
        return refresher;
    };
    auto first = start();
    EXPECT_EQ(board.Get()->rates.at("EUR"), 0.5);
    EXPECT_FALSE(first->Refresh(today));
    EXPECT_EQ(log.size(), 2U);
    folder.Put("rates.json", Daily("2026-11-21", 0.9));
    folder.Put("pages/a.html", "<p>a</p>");
    EXPECT_TRUE(first->Refresh(today));
    EXPECT_EQ(board.Get()->rates.at("EUR"), 0.9);
    EXPECT_EQ(board.Get()->rates.at("OLD"), 7);
    const std::string id = board.Get()->news->id;
    folder.Put("rates.json", "<html>Sorry</html>");
    std::filesystem::remove(folder / "pages/a.html");
    EXPECT_FALSE(first->Refresh(today));
    EXPECT_EQ(board.Get()->rates.at("EUR"), 0.9);
    // After a restart, with the sources still broken.
    first.reset();
    board.Publish({});
    const auto second = start();
    EXPECT_EQ(board.Get()->rates.at("EUR"), 0.9);
    EXPECT_EQ(Narrow(IsoDay(*board.Get()->ratesDate)), "2026-11-21");
    EXPECT_EQ(board.Get()->news->id, id);
    folder.Put("kept/rates-0.json", "{");
    EXPECT_EQ((start(), board.Get()->rates.at("EUR")), 0.5);
}

}  // namespace
}  // namespace rlx::test
