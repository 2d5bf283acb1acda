#include "weather/weather_store.h"

#include "platform/fake/memory_file_system.h"
#include "platform/fake/memory_object_store.h"
#include "weather/replies.h"

namespace rlx {
namespace {

using test::ReplyFor;

constexpr DateTime kNow{.date = {2026, 11, 22}, .hour = 20};
constexpr char16_t kParis[] = u"Paris:France";
const std::filesystem::path kList = "/app/cities.wet";

class WeatherStore : public testing::Test {
protected:
    WeatherStore() { m_files.files[kList] = "2\nParis;France;paris_france\nOslo;Norway;oslo_norway\n"; }

    CWeatherStore Open() { return {m_objects, m_files, kList}; }

    std::u16string Stored(PropertyId id, std::u16string_view place = kParis) {
        const auto database = m_objects.Open(kWeatherDatabase);
        const auto record = database ? database->SeekValue(PROP_WEATHER_PLACE, place) : std::nullopt;
        return record ? PropertyText(database->Read(*record).value(), id) : u"no record";
    }
    std::size_t Count() {
        const auto database = m_objects.Open(kWeatherDatabase);
        return database ? database->Count() : 0;
    }
    SaveOutcome Save(std::u16string_view place, std::u16string_view reply, const DateTime& now = kNow) {
        return Open().Save(place, reply, now).outcome;
    }

    CMemoryObjectStore m_objects;
    CMemoryFileSystem m_files;
};

TEST_F(WeatherStore, IsFilledOnceFromTheListAsSoonAsThereIsOne) {
    const auto list = std::exchange(m_files.files, {});
    EXPECT_EQ(Open().EnsureCreated(), WeatherStoreState::kListMissing);
    m_files.files = list;
    EXPECT_EQ(Open().EnsureCreated(), WeatherStoreState::kReady);
    EXPECT_EQ(m_objects.TypeOf(kWeatherDatabase), 54321U);
    EXPECT_EQ(m_objects.SortOrdersOf(kWeatherDatabase), (std::vector<PropertyId>{201, 202, 203, 204}));
    EXPECT_EQ(Stored(PROP_WEATHER_FEED), u"paris_france");
    EXPECT_EQ(Open().EnsureCreated(), WeatherStoreState::kReady);
    EXPECT_EQ(Count(), 2U);
    EXPECT_FALSE(Open().Find(kParis));
}

TEST_F(WeatherStore, ARefusedWriteLeavesNothingHalfDone) {
    for (int writes = 0; writes < 3; ++writes) {
        m_objects.Failures().FailAt(writes + 1, 1000);
        EXPECT_EQ(Open().EnsureCreated(), WeatherStoreState::kRefused) << writes;
        EXPECT_EQ(Count(), 0U) << writes;
    }
    m_objects.Failures().FailAt(0);
    EXPECT_EQ(Open().EnsureCreated(), WeatherStoreState::kReady);
    EXPECT_EQ(Save(kParis, ReplyFor(u"paris_france", u"2026-11-22T18:00Z")), SaveOutcome::kSaved);
    m_objects.Failures().FailAll();
    EXPECT_EQ(Save(kParis, ReplyFor(u"paris_france", u"2026-11-22T19:00Z")), SaveOutcome::kRefused);
    EXPECT_EQ(Open().Find(kParis)->forecast.issued.hour, 18);
}

TEST_F(WeatherStore, NothingWorseReplacesAGoodForecast) {
    Open().EnsureCreated();
    ASSERT_EQ(Save(kParis, test::kGoodReply), SaveOutcome::kSaved);
    const struct {
        const char* name;
        std::u16string reply;
        SaveOutcome outcome;
    } rows[] = {
        {"a page", u"<html>", SaveOutcome::kBroken},
        {"another place", ReplyFor(u"oslo_norway", u"2026-11-22T19:00Z"), SaveOutcome::kOtherPlace},
        {"older", ReplyFor(u"paris_france", u"2026-11-22T17:59Z"), SaveOutcome::kOlder},
    };
    for (const auto& row : rows) {
        EXPECT_EQ(Save(kParis, row.reply), row.outcome) << row.name;
        EXPECT_EQ(Stored(PROP_WEATHER_REPLY), test::kGoodReply) << row.name;
    }
    EXPECT_EQ(Save(kParis, ReplyFor(u"paris_france", u"2026-11-22T18:00Z")), SaveOutcome::kSaved) << "same issue";
}

TEST_F(WeatherStore, AForecastFromTheFutureShutsNothingOut) {
    Open().EnsureCreated();
    ASSERT_EQ(Save(kParis, ReplyFor(u"paris_france", u"2027-11-22T18:00Z")), SaveOutcome::kSaved);
    EXPECT_EQ(Save(kParis, ReplyFor(u"paris_france", u"2026-11-22T18:00Z")), SaveOutcome::kSaved);
}

TEST_F(WeatherStore, RubbishInTheDatabaseIsNoForecast) {
    Open().EnsureCreated();
    ASSERT_EQ(Save(kParis, test::kGoodReply), SaveOutcome::kSaved);
    EXPECT_EQ(Stored(PROP_WEATHER_DATES), u"2026-11-22T20:00Z;2026-11-22T18:00Z;Open-Meteo");
    const auto database = m_objects.Open(kWeatherDatabase);
    const auto id = database->SeekValue(PROP_WEATHER_PLACE, kParis).value();
    const Record good = database->Read(id).value();
    for (const auto property : {PROP_WEATHER_DATES, PROP_WEATHER_REPLY}) {
        Record bad = good;
        for (auto& field : bad)
            if (field.id == property) field.text = u"rubbish";
        ASSERT_TRUE(database->Overwrite(id, bad));
        EXPECT_FALSE(Open().Find(kParis)) << property;
    }
    EXPECT_EQ(Save(kParis, ReplyFor(u"paris_france", u"2026-11-01T18:00Z")), SaveOutcome::kSaved);
}

TEST_F(WeatherStore, RebuildFollowsTheListAndKeepsForecasts) {
    Open().EnsureCreated();
    ASSERT_EQ(Save(kParis, test::kGoodReply), SaveOutcome::kSaved);
    m_files.files[kList] = "2\nBern;Switzerland;bern\nRome;Italy;rome\n";
    m_objects.Failures().FailAt(2);
    EXPECT_EQ(Open().Rebuild(), WeatherStoreState::kRefused);
    EXPECT_EQ(Count(), 2U);
    m_objects.Failures().FailAt(0);
    EXPECT_EQ(Open().Rebuild(), WeatherStoreState::kReady);
    EXPECT_EQ(Count(), 3U);
    EXPECT_TRUE(Open().Find(kParis)) << "gone from the list, but it has a forecast";
    m_files.files.clear();
    EXPECT_EQ(Open().Rebuild(), WeatherStoreState::kListMissing);
    EXPECT_EQ(Count(), 3U) << "a list that is gone empties nothing";
}

TEST(WeatherPlaces, ReadsTheListByItsGrammar) {
    const struct {
        const char* name;
        std::string bytes;
        std::vector<WeatherPlace> places;
    } rows[] = {
        {"plain", "1\nParis;France;p\n", {{kParis, u"p"}}},
        {"end mark", "3\nParis;France;p\n>;\nOslo;Norway;o\n", {{kParis, u"p"}}},
        {"last line cut", "2\nParis;France;p\nOslo;Nor", {{kParis, u"p"}}},
        {"no feed name", "2\nOslo;Norway; \nParis;France;p\n", {{kParis, u"p"}}},
    };
    for (const auto& row : rows) {
        CMemoryStream stream(row.bytes);
        EXPECT_EQ(ReadWeatherPlaces(stream), row.places) << row.name;
    }
}

}  // namespace
}  // namespace rlx
