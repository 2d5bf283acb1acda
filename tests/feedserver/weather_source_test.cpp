#include "feedserver/weather_source.h"

#include <atomic>
#include <condition_variable>
#include <mutex>
#include <semaphore>
#include <thread>

#include "base/text.h"
#include "feeds/feed_parameters.h"
#include "feeds/feed_world.h"
#include "feedserver/answers.h"
#include "feedserver/http_listener.h"
#include "feedserver/sample_weather.h"
#include "feedserver/weather_texts.h"
#include "platform/posix/posix_file_system.h"
#include "support/paths.h"
#include "support/raw_client.h"
#include "support/temp_folder.h"
#include "weather/forecast_reader.h"
#include "weather/forecast_writer.h"

namespace rlx::test {
namespace {

constexpr DateTime kNow{{2026, 11, 22}, 18, 0};
const std::atomic<bool> kGoOn = false;

const ForecastCities& ShippedCities() {
    static const ForecastCities cities = [] {
        CPosixFileSystem files;
        return LoadForecastCities(files, kDataDir);
    }();
    return cities;
}

TEST(ForecastCities, JoinBothLists) {
    EXPECT_EQ(ShippedCities().size(), 1200U);
    const ForecastCity& paris = ShippedCities().at("paris_france");
    EXPECT_EQ(paris.zone, "Europe/Paris");
    EXPECT_NEAR(paris.latitude, 48.85, 0.1);
    EXPECT_EQ(UtcOffsetOf(paris, {{2026, 1, 1}}), 3600);
    EXPECT_EQ(UtcOffsetOf(paris, {{2026, 7, 1}}), 7200);

    CTempFolder folder;
    folder.Put("cities.wet", "5\nA;X;../a\nB;X;b_x\nC;X;c_x\nD;X;d_x\nE;X;E\n");
    folder.Put("cities.lst", "9\nZ;A;X;1;1;0;0\n\nZ;B;X;east;91;0;0;1;1;1;1\nZ;C;X;-1;-2;0;0;1;1;1;1\n\xFF;");
    CPosixFileSystem files;
    const ForecastCities cities = LoadForecastCities(files, folder.Path());
    EXPECT_EQ(cities.count("b_x") + cities.count("../a"), 0U);
    EXPECT_TRUE(LoadForecastCities(files, folder / "none").empty());
}

TEST(WeatherFetch, ChecksBeforeItBelieves) {
    const auto replaced = [](std::string text, const std::string& what, const std::string& with) {
        return text.replace(text.find(what), what.size(), with);
    };
    const ForecastCity& paris = ShippedCities().at("paris_france");
    const SourceBytes refusal{std::nullopt, "status 400", R"({"error":true,"reason":"no"})"};
    const struct {
        const char* name;
        SourceBytes source;
        std::string fault;
        DateTime now = kNow;
    } rows[] = {
        {"a good one", {OpenMeteoReply()}, ""},
        {"another city", {replaced(OpenMeteoReply(), "2.36", "4.9")}, "a forecast of another position"},
        {"from the future",
         {OpenMeteoReply()},
         "a forecast from 2026-11-22 on, which is in the future",
         {{2026, 11, 19}}},
        {"of the past", {OpenMeteoReply()}, "a forecast up to 2026-11-24, which is past", {{2026, 11, 26}}},
        {"impossible values only",
         {R"({"daily_units":{"temperature_2m_max":"°C"},"daily":{"time":["2026-11-22"],"temperature_2m_max":[99]}})"},
         "values or dates that no client would take"},
        {"refused", refusal, "status 400, refused: no"},
    };
    for (const auto& row : rows) {
        SCOPED_TRACE(row.name);
        std::string asked;
        const WeatherReader reader = [&](const std::string& from, const std::atomic<bool>&) {
            asked = from;
            return row.source;
        };
        const FetchedForecast fetched = FetchForecast({}, paris, reader, kGoOn, row.now);
        EXPECT_EQ(fetched.fault, row.fault);
        EXPECT_EQ(fetched.forecast.has_value(), row.fault.empty());
        EXPECT_EQ(asked.substr(0, 106),
                  "https://api.open-meteo.com/v1/forecast?latitude=48.8534&longitude=2.3488&timezone=Europe%2FParis"
                  "&forecast_");
        EXPECT_TRUE(!fetched.forecast || fetched.forecast->source == u"Open-Meteo.com (CC BY 4.0)");
    }
}

TEST(WeatherShelf, AsksACityOnceInAnHourAndRestsWhatCannotBeReached) {
    Forecast forecast{u"s", kNow, u"a", {{{2026, 11, 22}, 3}}};
    CWeatherShelf shelf;
    std::int64_t now = SecondNumber(kNow);
    EXPECT_TRUE(shelf.Ask("a", now).mustFetch);
    EXPECT_FALSE(shelf.Ask("a", now).mustFetch);
    EXPECT_TRUE(shelf.Ask("a", now).fetching);
    shelf.Fail("a", true, now += 5);
    EXPECT_FALSE(shelf.Ask("a", now += 3594).mustFetch);
    EXPECT_TRUE(shelf.Ask("a", ++now).mustFetch);
    shelf.Succeed("a", forecast);
    EXPECT_EQ(shelf.Ask("a", now).reply, WriteForecast(forecast));
    EXPECT_TRUE(shelf.Ask("a", now += 3600).mustFetch);
    EXPECT_FALSE(shelf.Ask("a", now).reply.empty());
    // The source is away: nobody is asked for until it had its rest, and then the same city at once.
    shelf.Fail("a", false, now);
    EXPECT_FALSE(shelf.Ask("a", now).mustFetch);
    EXPECT_FALSE(shelf.Ask("b", now += 299).mustFetch);
    EXPECT_TRUE(shelf.Ask("a", ++now).mustFetch);
    shelf.Withdraw("a");
    EXPECT_TRUE(shelf.Ask("a", now).mustFetch);
    shelf.Fail("a", true, now);
    EXPECT_TRUE(shelf.Ask("a", now - 1000).mustFetch) << "a clock that was set back";
    // Two days on, its only day is past.
    EXPECT_TRUE(shelf.Ask("a", now + 2 * 86400).reply.empty());
    CWeatherShelf later;
    later.Restore(forecast);
    EXPECT_FALSE(later.Ask("a", SecondNumber(kNow) + 3599).mustFetch);
    EXPECT_FALSE(later.Ask("a", SecondNumber(kNow) + 3599).reply.empty());
}

TEST(SampleWeather, IsReadableEverywhereAndSaysWhatItIs) {
    std::size_t suns = 0;
    std::size_t count = 0;
    for (const auto& [feedName, city] : ShippedCities()) {
        const DateTime now = ++count % 2 == 0 ? kNow : DateTime{{2026, 6, 21}, 0, 0};
        const Forecast sample = SampleForecast(city, now);
        const ForecastReading reading = ReadForecast(Widen(WriteForecast(sample)));
        ASSERT_TRUE(reading.forecast) << feedName;
        ASSERT_EQ(*reading.forecast, sample) << feedName;
        EXPECT_EQ(sample.source, u"sample, not a forecast");
        EXPECT_EQ(sample.days.size(), 7U);
        EXPECT_EQ(sample.days.front().date, AddSeconds(now, UtcOffsetOf(city, now)).date) << feedName;
        suns += sample.days.front().sunrise && sample.days.front().sunset ? 1U : 0U;
    }
    EXPECT_GT(suns, 1170U);
    const ForecastCity& paris = ShippedCities().at("paris_france");
    const Forecast today = SampleForecast(paris, kNow);
    EXPECT_EQ(SampleForecast(paris, AddSeconds(kNow, 86400)).days[0], today.days[1]) << "a day stays what it was";
}

/// A server over loopback whose source is played.
struct WeatherWorld : FeedWorld {
    WeatherWorld() { config.sample = false; }

    void Start() {
        listener.reset();
        source.reset();
        source = std::make_unique<CWeatherSource>(
            files, ShippedCities(), config, folder / "keep",
            [this](const std::string&, const std::atomic<bool>&) { return Read(); }, [this] { return now.load(); },
            [this](const std::string& line) { Log(line); }, limits);
        source->Begin();
        listener = std::make_unique<CHttpListener>(
            board, ListenerLimits{}, [](const std::string&) {}, source.get());
        EXPECT_EQ(listener->Listen({"127.0.0.1", 0}), "");
    }

    SourceBytes Read() {
        ++asked;
        entered.release();
        if (blocked) leave.acquire();
        return reply;
    }

    void Log(const std::string& line) {
        const std::lock_guard lock(mutex);
        log.push_back(line);
        logged.notify_all();
    }

    void WaitForLines(std::size_t count) {
        std::unique_lock lock(mutex);
        logged.wait(lock, [&] { return log.size() >= count; });
    }

    std::u16string Ask(const char16_t* feedName) {
        const std::u16string url = u"http://127.0.0.1:" + Widen(std::to_string(listener->Port())) + u"/feed";
        return client.PostFeedRequest(url, parameters.WeatherParameters(feedName, {}), false).body;
    }

    CTempFolder folder;
    CPosixFileSystem files;
    CKnowledgeBoard board;
    WeatherConfig config;
    WeatherLimits limits;
    std::atomic<std::int64_t> now = SecondNumber(kNow);
    std::atomic<int> asked = 0;
    bool blocked = false;
    SourceBytes reply{OpenMeteoReply()};
    std::counting_semaphore<> entered{0};
    std::counting_semaphore<> leave{0};
    std::mutex mutex;
    std::condition_variable logged;
    std::vector<std::string> log;
    CFeedParameters parameters{registry, {6, 1, u"x", u"1", {240, 320}, {240, 294}}};
    std::unique_ptr<CWeatherSource> source;
    std::unique_ptr<CHttpListener> listener;
};

TEST(WeatherSource, FirstWaitsThenAnswersAtOnceAndSurvivesRestarts) {
    WeatherWorld world;
    world.Start();
    const std::u16string first = world.Ask(u"paris_france");
    const ForecastReading reading = ReadForecast(first);
    ASSERT_TRUE(reading.forecast) << Narrow(first);
    EXPECT_EQ(reading.forecast->days.at(1).high, 10.6);
    EXPECT_EQ(reading.forecast->issued, kNow);
    world.WaitForLines(1);
    world.now += 3599;
    EXPECT_EQ(world.Ask(u"paris_france"), first);
    EXPECT_EQ(world.asked, 1);
    // An hour old: the same again, while a newer one is on its way, which fails.
    world.now += 1;
    world.reply = {std::nullopt, "status 500"};
    EXPECT_EQ(world.Ask(u"paris_france"), first);
    world.WaitForLines(2);
    EXPECT_EQ(world.log.back(), "weather: paris_france: status 500");
    EXPECT_EQ(world.Ask(u"paris_france"), first);
    EXPECT_EQ(world.asked, 2);
    EXPECT_EQ(world.source->Health(), "weather 1 of 1200 cities, newest 2026-11-22T18:00Z");
    world.now = SecondNumber(kNow) + 1800;
    world.Start();
    EXPECT_EQ(world.Ask(u"paris_france"), first);
    EXPECT_EQ(world.asked, 2);
    world.folder.Put("keep/weather/paris_france.txt", "weather_1#");
    world.Start();
    EXPECT_EQ(world.log.back(), "keep: the forecast of paris_france is damaged");
}

TEST(WeatherSource, SaysWhatItCannotTell) {
    WeatherWorld world;
    world.reply = {std::nullopt, "Couldn't connect", "", false};
    world.Start();
    EXPECT_EQ(world.Ask(u"atlantis"), u"weather_1#\nplace_atlantis#\nend_0#\n");
    EXPECT_EQ(world.Ask(u"paris_france"), u"");
    EXPECT_EQ(world.Ask(u"oslo_norway"), u"");
    EXPECT_EQ(world.asked, 1);
    ASSERT_EQ(world.Messages().size(), 3U);
    EXPECT_NE(world.Messages()[0].find("(1006)"), std::string::npos);
    EXPECT_NE(world.Messages()[2].find("(1004)"), std::string::npos);
    EXPECT_EQ(world.source->Ask("x#\n\xFF", {})->body, "weather_1#\nplace_x???#\nend_0#\n");
    EXPECT_FALSE(world.source->Check());
    world.config.sample = true;
    world.Start();
    EXPECT_EQ(ReadForecast(world.Ask(u"paris_france")).forecast->source, u"sample, not a forecast");
    EXPECT_TRUE(world.source->Check());
}

TEST(WeatherSource, ASlowSourceHoldsNobodyUp) {
    WeatherWorld world;
    world.limits.threads = 1;
    world.limits.queue = 1;
    world.limits.longestWait = std::chrono::milliseconds(0);
    world.blocked = true;
    world.Start();
    EXPECT_EQ(world.Ask(u"paris_france"), u"") << "the wait is over";
    world.entered.acquire();
    EXPECT_EQ(world.Ask(u"oslo_norway"), u"") << "in the queue";
    EXPECT_EQ(world.Ask(u"rome_italy"), u"") << "no room in the queue";
    world.leave.release(2);
    world.WaitForLines(2);
    EXPECT_TRUE(ReadForecast(world.Ask(u"paris_france")).forecast);
    EXPECT_EQ(world.log.at(1), "weather: oslo_norway: a forecast of another position");
    EXPECT_EQ(world.asked, 2);
}

TEST(WeatherSource, EndsWhileClientsWait) {
    WeatherWorld world;
    world.limits.longestWait = std::chrono::minutes(5);
    world.blocked = true;
    world.Start();
    const std::string body = Narrow(world.parameters.WeatherParameters(u"paris_france", {}));
    const std::uint16_t port = world.listener->Port();
    std::thread waiting([&] {
        RawExchange(port, "POST /feed HTTP/1.1\r\nHost: a\r\nConnection: close\r\nContent-Length: " +
                              std::to_string(body.size()) + "\r\n\r\n" + body);
    });
    world.entered.acquire();
    EXPECT_NE(RawExchange(port, "GET /health HTTP/1.1\r\nHost: a\r\nConnection: close\r\n\r\n").find("weather 0 of"),
              std::string::npos);
    world.listener.reset();
    waiting.join();
    world.leave.release(1);
    world.source.reset();
    EXPECT_EQ(world.asked, 1);
}

TEST(WeatherSource, ACheckReadsAFolder) {
    CTempFolder folder;
    CPosixFileSystem files;
    std::string last;
    CWeatherSource source(
        files, ShippedCities(), {WeatherKind::kFolder, folder.Path().string(), false}, {},
        [&](const std::string& from, const std::atomic<bool>&) { return ReadSourceBytes(files, from, "json"); },
        [] { return SecondNumber(kNow); }, [&](const std::string& line) { last = line; });
    EXPECT_FALSE(source.Check());
    EXPECT_EQ(last, "weather: no forecast in " + folder.Path().string());
    folder.Put("paris_france.json", OpenMeteoReply());
    folder.Put("notes.txt", "x");
    EXPECT_TRUE(source.Check());
    folder.Put("lyon_france.json", "{");
    EXPECT_FALSE(source.Check());
    EXPECT_EQ(last, "weather: " + (folder / "lyon_france.json").string() + ": not a JSON object");
    folder.Put("lyon_france.json", OpenMeteoReply());
    folder.Put("x.json", "{}");
    EXPECT_FALSE(source.Check());
    EXPECT_EQ(last, "weather: x.json is of no city");
}

}  // namespace
}  // namespace rlx::test
