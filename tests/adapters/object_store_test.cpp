#include "platform/fake/fixed_clock.h"
#include "platform/sqlite/device_store.h"
#include "support/temp_folder.h"

namespace rlx {
namespace {

constexpr PropertyId kName = 101;
constexpr PropertyId kPlace = 103;
constexpr PropertyId kUnsorted = 108;

class ObjectStore : public testing::Test {
protected:
    std::unique_ptr<CDeviceStore> OpenStore() { return OpenDeviceStore(m_folder / "device.db", m_clock).store; }

    void SetUp() override {
        m_store = OpenStore();
        ASSERT_TRUE(Objects().Create(u"db", 12345, {kName, kPlace}));
        m_db = Objects().Open(u"db");
        ASSERT_NE(m_db, nullptr);
    }
    IObjectStore& Objects() { return m_store->Objects(); }

    RecordId Put(std::u16string name, std::u16string place = {}) {
        return m_db->Add({{kName, std::move(name)}, {kPlace, std::move(place)}}).value();
    }
    static std::u16string Order(IRecordDatabase& db, PropertyId sort = kName) {
        std::u16string all;
        for (std::size_t i = 0; const auto id = db.SeekPosition(sort, i); ++i) {
            EXPECT_EQ(db.PositionOf(sort, *id), i);
            all += PropertyText(db.Read(*id).value(), kName) + u" ";
        }
        std::u16string atOnce;
        for (const Record& record : db.Records(sort))
            atOnce += PropertyText(record, kName) + u" ";
        EXPECT_EQ(atOnce, all);
        return all;
    }

    test::CTempFolder m_folder;
    CFixedClock m_clock{{{2026, 11, 22}, 14, 22, 33, 0}};
    std::unique_ptr<CDeviceStore> m_store;
    std::unique_ptr<IRecordDatabase> m_db;
};

TEST_F(ObjectStore, SortsByUnitsAndKeepsEqualValuesInTheOrderOfAdding) {
    const RecordId firstB = Put(u"b", u"2");
    Put(u"\uE000", u"1");
    Put(u"a", u"3");
    const RecordId secondB = Put(u"b", u"2");
    Put(u"\U00010000", u"0");
    Put(u"B", u"2");
    EXPECT_EQ(Order(*m_db), u"B a b b \U00010000 \uE000 ");
    EXPECT_EQ(Order(*m_db, kPlace), u"\U00010000 \uE000 b b B a ");
    EXPECT_EQ(m_db->SeekValue(kName, u"b"), firstB);
    EXPECT_FALSE(m_db->SeekValue(kName, u"bb"));
    EXPECT_FALSE(m_db->SeekPosition(kName, 6));
    EXPECT_FALSE(m_db->SeekPosition(kUnsorted, 0)) << "no such sort order";
    EXPECT_TRUE(m_db->Overwrite(firstB, {{kName, u"z"}}));
    EXPECT_TRUE(m_db->Overwrite(firstB, {{kName, u"b"}}));
    EXPECT_EQ(m_db->SeekValue(kName, u"b"), firstB) << "an overwritten record keeps its age";
    EXPECT_EQ(m_db->SeekValue(kPlace, u""), firstB) << "a missing property sorts as an empty text";
    EXPECT_TRUE(m_db->Delete(firstB));
    EXPECT_EQ(m_db->SeekValue(kName, u"b"), secondB);
    EXPECT_FALSE(m_db->PositionOf(kName, firstB));
}

TEST_F(ObjectStore, RecordsComeBackAsWritten) {
    const Record records[] = {{},
                              {{7, u""}},
                              {{kUnsorted, u"x"}, {kName, std::u16string(u"a\0\xD800", 3)}, {0xFFFFFFFF, u"\xFEFF"}},
                              {{1, std::u16string(100000, u'l')}}};
    for (const Record& record : records) {
        const auto id = m_db->Add(record);
        ASSERT_TRUE(id);
        EXPECT_EQ(m_db->Read(*id), record);
    }
    EXPECT_EQ(m_db->Count(), std::size(records));
    EXPECT_FALSE(m_db->Add({{1, u"a"}, {2, u"b"}, {1, u"c"}})) << "a number twice";
    EXPECT_FALSE(m_db->Overwrite(999, {}));
    EXPECT_FALSE(m_db->Delete(999));
    EXPECT_FALSE(m_db->Read(999));
    EXPECT_EQ(m_db->Count(), std::size(records));
}

TEST_F(ObjectStore, NumbersOfDeletedRecordsNeverComeAgain) {
    RecordId last = Put(u"a");
    m_db->Delete(last);
    EXPECT_GT(Put(u"b"), last);
    last = Put(u"c");
    ASSERT_TRUE(Objects().Remove(u"db"));
    EXPECT_EQ(Objects().Open(u"db"), nullptr);
    EXPECT_EQ(m_db->Count(), 0U);
    EXPECT_FALSE(m_db->Add({{kName, u"lost"}}));
    ASSERT_TRUE(Objects().Create(u"db", 12345, {kPlace}));
    EXPECT_GT(Put(u"d", u"p"), last) << "an open handle finds the database that was made again";
    EXPECT_EQ(Order(*m_db, kPlace), u"d ");
    EXPECT_FALSE(m_db->SeekPosition(kName, 0));
}

TEST_F(ObjectStore, CreateLeavesWhatIsThere) {
    Put(u"a");
    EXPECT_TRUE(Objects().Create(u"db", 1, {kUnsorted}));
    EXPECT_EQ(Order(*m_db), u"a ");
    EXPECT_FALSE(Objects().Create(u"five", 1, {1, 2, 3, 4, 5}));
    EXPECT_EQ(Objects().Open(u"five"), nullptr);
    EXPECT_TRUE(Objects().Remove(u"never there"));
}

TEST_F(ObjectStore, EveryHandleSeesWhatTheOthersWrote) {
    const auto otherStore = OpenStore();
    const auto inside = Objects().Open(u"db");
    const auto outside = otherStore->Objects().Open(u"db");
    for (IRecordDatabase* db : {m_db.get(), inside.get(), outside.get()})
        EXPECT_EQ(Order(*db), u"");
    const auto a = inside->Add({{kName, u"a"}});
    const auto c = outside->Add({{kName, u"c"}});
    const auto b = m_db->Add({{kName, u"b"}});
    for (IRecordDatabase* db : {m_db.get(), inside.get(), outside.get()})
        EXPECT_EQ(Order(*db), u"a b c ");
    outside->Overwrite(*a, {{kName, u"z"}});
    m_db->Delete(*c);
    for (IRecordDatabase* db : {m_db.get(), inside.get(), outside.get()}) {
        EXPECT_EQ(Order(*db), u"b z ");
        EXPECT_EQ(db->Count(), 2U);
        EXPECT_EQ(db->SeekValue(kName, u"b"), b);
    }
    otherStore->Objects().Remove(u"db");
    otherStore->Objects().Create(u"db", 1, {kName});
    otherStore->Objects().Open(u"db")->Add({{kName, u"new"}});
    EXPECT_EQ(Order(*m_db), u"new ");
}

TEST_F(ObjectStore, AFailedTransactionLeavesEverythingAsItWas) {
    Put(u"a");
    const auto fails = [&] {
        Put(u"b");
        EXPECT_EQ(Order(*m_db), u"a b ") << "one's own writes show at once";
        EXPECT_EQ(m_db->Count(), 2U);
        m_store->Registry().Set(RegistryRoot::kLocalMachine, u"K", u"v", {});
        Objects().Create(u"other", 1, {});
        Objects().Remove(u"db");
        return false;
    };
    EXPECT_FALSE(Objects().Transact(fails));
    EXPECT_EQ(Order(*m_db), u"a ");
    EXPECT_EQ(m_db->Count(), 1U);
    EXPECT_FALSE(m_store->Registry().KeyExists(RegistryRoot::kLocalMachine, u"K"));
    EXPECT_EQ(Objects().Open(u"other"), nullptr);
    EXPECT_THROW(Objects().Transact([&]() -> bool { return Put(u"c") != 0 ? throw 1 : true; }), int);
    EXPECT_EQ(Order(*m_db), u"a ");
    EXPECT_TRUE(Objects().Transact([&] { return Put(u"d") != 0; }));
    EXPECT_EQ(Order(*OpenStore()->Objects().Open(u"db")), u"a d ");
}

TEST_F(ObjectStore, AJoinedTransactionTakesBackOnlyItsOwnWrites) {
    const auto other = OpenStore();
    const auto outside = other->Objects().Open(u"db");
    const bool done = Objects().Transact([&] {
        Put(u"a");
        EXPECT_FALSE(Objects().Transact([&] { return Put(u"b") == 0; }));
        EXPECT_EQ(Order(*m_db), u"a ");
        EXPECT_TRUE(Objects().Transact([&] { return Put(u"c") != 0; }));
        EXPECT_EQ(outside->Count(), 0U) << "nobody sees a part";
        return true;
    });
    EXPECT_TRUE(done);
    EXPECT_EQ(Order(*outside), u"a c ");
    EXPECT_EQ(m_db->Count(), 2U);
    EXPECT_FALSE(Objects().Transact([&] { return Objects().Transact([&] { return Put(u"d") != 0; }) && false; }));
    EXPECT_EQ(Order(*m_db), u"a c ");
}

TEST_F(ObjectStore, LastModifiedFollowsTheDeviceClock) {
    const std::int64_t made = SecondNumber(m_clock.Now());
    EXPECT_EQ(m_db->LastModified(), made);
    m_clock.Set(AddSeconds(m_clock.Now(), -7200));
    const RecordId id = Put(u"a");
    EXPECT_EQ(m_db->LastModified(), made - 7200);
    m_clock.Set(AddSeconds(m_clock.Now(), 10));
    m_db->Overwrite(999, {});
    m_store->Registry().Set(RegistryRoot::kLocalMachine, u"K", u"v", {});
    EXPECT_EQ(m_db->LastModified(), made - 7200) << "a refused write and a setting are no change";
    m_db->Delete(id);
    EXPECT_EQ(m_db->LastModified(), made - 7190);
}

}  // namespace
}  // namespace rlx
