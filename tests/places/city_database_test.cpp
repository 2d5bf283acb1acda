#include "places/city_database.h"

#include "places/cities_fixture.h"

namespace rlx {
namespace {

using CityDatabase = test::CitiesFixture;

const std::string kTwoCities =
    "2\nz;Ulm;Germany;10.0;48.4;1;1;88;2;298;3\nz;Bern;Switzerland;7.4;46.9;1;1;88;2;298;3\n";
const std::string kOneCity = "1\nz;Rome;Italy;12.5;41.9;1;1;88;2;298;3\n";

TEST_F(CityDatabase, BuildsOnceInTheOrderOfThePlaces) {
    ASSERT_EQ(Build(kTwoCities), CityListState::kReady);
    EXPECT_EQ(store.TypeOf(u"rlxCities"), 12345U);
    EXPECT_EQ(store.SortOrdersOf(u"rlxCities"), (std::vector<PropertyId>{101, 103, 108, 104}));
    ASSERT_EQ(cities.Count(), 2U);
    EXPECT_EQ(cities.GetPlace(0), u"Bern:Switzerland");
    EXPECT_EQ(cities.GetName(1), u"Ulm");
    const auto raw = store.Open(u"rlxCities");
    const Record ulm = raw->Read(raw->SeekPosition(101, 1).value()).value();
    EXPECT_EQ(ulm, (Record{{101, u"Ulm:Germany"}, {103, u"10.0:48.4"}, {108, u"1"}, {104, u"1:88:2:298:3"}}));

    EXPECT_EQ(Build(kOneCity), CityListState::kReady);
    EXPECT_EQ(cities.GetName(0), u"Bern") << "cities that are there are not replaced";
    EXPECT_TRUE(boxes.shown.empty());
}

TEST_F(CityDatabase, TellsOfAMissingFileAndTriesAgain) {
    EXPECT_EQ(cities.EnsureCreated(), CityListState::kNoFile);
    EXPECT_EQ(cities.EnsureCreated(), CityListState::kNoFile);
    ASSERT_EQ(boxes.shown.size(), 2U);
    EXPECT_EQ(boxes.shown[0], (MessageBox{u"Error!", u"Cities file not found\nDatabase not created!",
                                          BoxIcon::kExclamation, BoxButtons::kOk}));
    EXPECT_NE(store.Open(u"rlxCities"), nullptr) << "made, though empty";
    EXPECT_EQ(Build(kTwoCities), CityListState::kReady) << "an empty database is built when the file is there";
    EXPECT_EQ(cities.Count(), 2U);
}

TEST_F(CityDatabase, FindsTheCitiesOfAnotherProcessThatWasFirst) {
    store.BeforeNextTransact([this] { Another().EnsureCreated(); });
    EXPECT_EQ(Build(kTwoCities), CityListState::kReady);
    EXPECT_EQ(cities.Count(), 2U);
}

TEST_F(CityDatabase, LeavesNothingHalfDoneWhenTheStoreRefuses) {
    // Making the database and adding two cities are three writes.
    for (int refused = 1; refused <= 3; ++refused) {
        store.Failures().FailAt(refused);
        EXPECT_EQ(Build(kTwoCities), CityListState::kNotWritten) << refused;
        EXPECT_EQ(store.Open(u"rlxCities"), nullptr) << refused;
    }
    store.Failures().FailAt(0);
    ASSERT_EQ(Build(kTwoCities), CityListState::kReady);
    files.files[kFile] = kOneCity;
    for (int refused = 1; refused <= 3; ++refused) {
        store.Failures().FailAt(refused);
        EXPECT_EQ(cities.Rebuild(), CityListState::kNotWritten) << refused;
        EXPECT_EQ(cities.GetName(1), u"Ulm") << refused;
    }
    EXPECT_TRUE(boxes.shown.empty());
}

TEST_F(CityDatabase, RebuildsForEveryHandle) {
    Build(kTwoCities);
    CCityDatabase other = Another();
    EXPECT_EQ(other.Count(), 2U);
    files.files[kFile] = kOneCity;
    EXPECT_EQ(cities.Rebuild(), CityListState::kReady);
    EXPECT_EQ(other.Count(), 1U);
    EXPECT_EQ(other.GetName(0), u"Rome");
    EXPECT_EQ(cities.GetName(0), u"Rome");

    files.files.clear();
    EXPECT_EQ(cities.Rebuild(), CityListState::kNoFile);
    EXPECT_EQ(cities.GetName(0), u"Rome") << "without a file the cities stay";
    EXPECT_EQ(boxes.shown.size(), 1U);
}

}  // namespace
}  // namespace rlx
