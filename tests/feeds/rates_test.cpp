#include "base/byte_stream.h"
#include "feeds/currency_database.h"
#include "feeds/feed_world.h"
#include "feeds/rates_list.h"
#include "feeds/rates_origin.h"
#include "feeds/rates_reply.h"
#include "feeds/rates_update.h"
#include "platform/fake/fixed_clock.h"
#include "platform/posix/posix_file_system.h"
#include "platform/sqlite/device_store.h"
#include "support/temp_folder.h"

namespace rlx::test {
namespace {

const CurrencyList kList = {{u"USD", u"US Dollar", u"1"}, {u"EUR", u"Euro", u"0.9"}, {u"JPY", u"Yen", u"150"}};

CurrencyList ListFrom(const std::string& bytes) {
    CMemoryStream stream(bytes);
    return ReadRatesList(stream);
}

TEST(RatesList, ReadsItsGrammar) {
    const struct {
        const char* name;
        std::string bytes;
        CurrencyList list;
    } rows[] = {
        {"three entries", "3\nUSD_US Dollar_1#EUR_Euro_0.9#JPY_Yen_150#", kList},
        {"fewer than the count", "900000000\nUSD_US Dollar_1#\n", {kList[0]}},
        {"a line break becomes part of the code",
         "2\nUSD_US Dollar_1#\nEUR_Euro_0.9#",
         {kList[0], {u"\nEUR", u"Euro", u"0.9"}}},
        {"the last entry without its end", "2\nUSD_US Dollar_1#EUR_Euro_0.9", {kList[0], kList[1]}},
    };
    for (const auto& row : rows)
        EXPECT_EQ(ListFrom(row.bytes), row.list) << row.name;
    std::string many = "2000000000\n";
    for (int i = 0; i < 20'000; ++i)
        many += "A_B_1#";
    EXPECT_EQ(ListFrom(many).size(), kMaxListEntries);
}

TEST(RatesList, KnowsItsDate) {
    CTempFolder folder;
    CPosixFileSystem files;
    EXPECT_FALSE(ShippedRatesDate(files, folder.Path()));
    EXPECT_TRUE(LoadRatesList(files, folder.Path()).empty());
    for (const std::string bad : {"2026-02-30\n", "29/09/2026", "2026-9-29", "+026-09-29", "2026-09-29 12:00", ""}) {
        files.WriteFile(folder.Path() / "currs.date", bad);
        EXPECT_FALSE(ShippedRatesDate(files, folder.Path())) << bad;
    }
    files.WriteFile(folder.Path() / "currs.date", "2026-09-29\r\n");
    EXPECT_EQ(ShippedRatesDate(files, folder.Path()), (Date{2026, 9, 29}));
    CMemoryRegistry registry;
    const RatesOrigin shipped = OriginOfRates(registry, ShippedRatesDate(files, folder.Path()));
    EXPECT_EQ(shipped.date, (Date{2026, 9, 29}));
    EXPECT_EQ(shipped.source, u"");
    EXPECT_FALSE(AreRatesStale(shipped.date, {2026, 10, 6}));
    EXPECT_TRUE(AreRatesStale(shipped.date, {2026, 10, 7}));
    EXPECT_FALSE(AreRatesStale(shipped.date, {2026, 9, 28}));
    EXPECT_TRUE(AreRatesStale(shipped.date, {2026, 9, 27}));  // a day that has not come yet cannot be right
    EXPECT_TRUE(AreRatesStale(std::nullopt, {2026, 10, 7}));
}

TEST(RatesReply, TakesEntriesApart) {
    CurrencyList longList(188, {u"", u"filler", u"1"});
    longList.push_back({u"AAA", u"the 189th", u"1"});
    longList.push_back({u"BBB", u"the 190th", u"1"});
    const struct {
        const char* name;
        const CurrencyList& list;
        std::u16string reply;
        std::u16string changes;
    } rows[] = {
        {"two entries", kList, u"EUR_0.91#JPY_151#", u"Euro EUR=0.91, Yen JPY=151, "},
        {"line breaks hide the code behind them", kList, u"EUR_0.91#\r\nJPY_151#", u"Euro EUR=0.91, "},
        {"a rate is kept as it came", kList, u"EUR_n/a_ 1,5#USD_#", u"Euro EUR=n/a_ 1,5, US Dollar USD=, "},
        {"the last of two rates counts", kList, u"EUR_1#JPY_3#EUR_2#", u"Euro EUR=2, Yen JPY=3, "},
        {"the lookup ends at 189", longList, u"AAA_1#BBB_2#", u"the 189th AAA=1, "},
    };
    for (const auto& row : rows) {
        std::u16string changes;
        for (const RateChange& change : ParseRatesReply(row.reply, row.list))
            changes += change.name + u" " + change.code + u"=" + change.rate + u", ";
        EXPECT_EQ(changes, row.changes) << row.name;
    }
}

/// A device with a currency database, at noon of 1 March 2026.
struct RatesWorld : FeedWorld {
    RatesWorld() {
        clock.Set(DateTime{{2026, 3, 1}, 12});
        EXPECT_TRUE(database.EnsureCreated({})) << "no list yet";
        EXPECT_TRUE(database.EnsureCreated(kList));
    }

    std::string Rates() {
        std::string text;
        for (const CurrencyEntry& entry : database.All())
            text += ToUtf8(entry.code + u"=" + entry.rate + u" ");
        return text;
    }
    RatesUpdateResult Update(CScriptedServer& server) {
        return update.Update(database, server.Url(), u"did=a&jc=110", {{240, 268}, 200});
    }

    CFixedClock clock;
    std::unique_ptr<CDeviceStore> store = OpenDeviceStoreInMemory(clock);
    CCurrencyDatabase database{store->Objects()};
    CRatesUpdate update{ports, store->Objects(), kList};
};

TEST(CurrencyDatabase, IsBuiltOnceAndReadByName) {
    RatesWorld world;
    EXPECT_EQ(world.Rates(), "EUR=0.9 USD=1 JPY=150 ");
    EXPECT_TRUE(world.database.WriteRate(u"Yen", u"JPY", u"151"));
    EXPECT_FALSE(world.database.WriteRate(u"yen", u"JPY", u"152"));
    CCurrencyDatabase again(world.store->Objects());
    EXPECT_EQ(again.Count(), 0U);
    EXPECT_TRUE(again.EnsureCreated({{u"GBP", u"Pound", u"1"}}));
    EXPECT_EQ(again.Count(), 3U);
    EXPECT_EQ(again.At(2), (CurrencyEntry{u"JPY", u"Yen", u"151"}));
    EXPECT_FALSE(again.At(3));
    const auto raw = world.store->Objects().Open(u"rlxCurrencies");
    EXPECT_EQ(raw->Read(*raw->SeekPosition(403, 0)), (Record{{402, u"Euro"}, {401, u"EUR"}, {403, u"0.9"}}));
}

TEST(RatesUpdate, StoresWhatTheReplyBrings) {
    const struct {
        const char* name;
        std::string reply;
        std::string rates;
    } rows[] = {
        {"rates", "EUR_0.95#JPY_160#XYZ_1#", "EUR=0.95 USD=1 JPY=160 "},
        {"a page", "<html>", "EUR=0.9 USD=1 JPY=150 "},
        {"cut off", "EUR_0.95#JPY_16", "EUR=0.95 USD=1 JPY=150 "},
    };
    for (const auto& row : rows) {
        RatesWorld world;
        CScriptedServer server({{FeedReplyBytes(row.reply)}});
        EXPECT_TRUE(world.Update(server).stored) << row.name;
        EXPECT_EQ(world.Rates(), row.rates) << row.name;
    }
}

TEST(RatesUpdate, TheLabelChangesWithTheDay) {
    RatesWorld world;
    CScriptedServer server({{FeedReplyBytes("EUR_1#")}, {FeedReplyBytes("EUR_2#")}, {FeedReplyBytes("XYZ_1#")}});
    EXPECT_EQ(world.Update(server).label, std::nullopt);
    EXPECT_EQ(world.Rates(), "EUR=1 USD=1 JPY=150 ");
    world.clock.Set(DateTime{{2026, 3, 2}, 0});
    EXPECT_EQ(world.Update(server).label, u"Last update\n 2/3/2026 ");
    world.clock.Set(DateTime{{2026, 3, 3}, 0});
    const RatesUpdateResult third = world.Update(server);
    EXPECT_EQ(third.label, std::nullopt);
    EXPECT_EQ(third.rates, 0U);
    const RatesOrigin origin = OriginOfRates(world.registry, std::nullopt);
    EXPECT_EQ(origin.date, (Date{2026, 3, 2}));
    EXPECT_EQ(origin.source, u"127.0.0.1");
}

TEST(RatesUpdate, TheLabelFitsTheScreen) {
    const CResources texts;
    const Date date{2026, 12, 31};
    EXPECT_EQ(RatesUpdateLabel(texts, {{240, 240}, 244}, date), u"Upd. 31/12/2026 ");
    EXPECT_EQ(RatesUpdateLabel(texts, {{320, 240}, 245}, date), u"Last update\n 31/12/2026 ");
}

}  // namespace
}  // namespace rlx::test
