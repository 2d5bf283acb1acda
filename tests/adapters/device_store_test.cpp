#include "platform/sqlite/device_store.h"

#include <sqlite3.h>
#include <sys/wait.h>
#include <unistd.h>

#include "platform/fake/fixed_clock.h"
#include "support/temp_folder.h"

namespace rlx {
namespace {

namespace fs = std::filesystem;

constexpr RegistryRoot kMachine = RegistryRoot::kLocalMachine;
constexpr PropertyId kName = 101;

std::size_t BuildOnce(IObjectStore& objects, int records) {
    const auto build = [&] {
        objects.Create(u"db", 1, {kName});
        const auto db = objects.Open(u"db");
        if (db->Count() > 0) return true;
        for (int i = 0; i < records; ++i)
            db->Add({{kName, std::u16string(1, static_cast<char16_t>(i))}});
        return true;
    };
    return objects.Transact(build) ? objects.Open(u"db")->Count() : 0;
}

class DeviceStore : public testing::Test {
protected:
    OpenedStore Open() { return OpenDeviceStore(File(), m_clock); }
    fs::path File() const { return m_folder / "device.db"; }

    /// A store with one setting and some records, closed.
    void MakeStore() {
        const OpenedStore opened = Open();
        ASSERT_TRUE(opened.store->Registry().Set(kMachine, u"K", u"v", {RegistryType::kBinary, "kept"}));
        ASSERT_EQ(BuildOnce(opened.store->Objects(), 500), 500U);
    }
    static std::string Setting(CDeviceStore& store) {
        return store.Registry().Query(kMachine, u"K", u"v").value_or(RegistryValue{}).bytes;
    }
    void Sql(const char* statement) {
        sqlite3* database = nullptr;
        ASSERT_EQ(sqlite3_open(File().c_str(), &database), SQLITE_OK);
        EXPECT_EQ(sqlite3_exec(database, statement, nullptr, nullptr, nullptr), SQLITE_OK);
        sqlite3_close(database);
    }

    test::CTempFolder m_folder;
    CFixedClock m_clock{{{2026, 11, 22}, 14, 22, 33, 0}};
};

TEST_F(DeviceStore, IsMadeOnceWithTheFoldersAboveIt) {
    const fs::path file = m_folder / "a/b/device.db";
    EXPECT_EQ(OpenDeviceStore(file, m_clock).outcome, StoreOutcome::kCreated);
    EXPECT_EQ(OpenDeviceStore(file, m_clock).outcome, StoreOutcome::kOpened);
    fs::resize_file(m_folder.Put("empty.db", ""), 0);
    EXPECT_EQ(OpenDeviceStore(m_folder / "empty.db", m_clock).outcome, StoreOutcome::kCreated);
}

TEST_F(DeviceStore, ADamagedFileIsMovedAsideAndANewOneServes) {
    MakeStore();
    const std::string good = m_folder.Get("device.db");
    std::string brokenSchema = good;
    brokenSchema.replace(100, 300, 300, '\xEE');
    const struct {
        const char* what;
        std::string bytes;
    } rows[] = {{"text", "this is not a database\n"},
                {"cut in a page", good.substr(0, 5000)},
                {"last page gone", good.substr(0, good.size() - 4096)},
                {"schema overwritten", brokenSchema},
                {"zeros", std::string(good.size(), '\0')}};
    for (const auto& row : rows) {
        SCOPED_TRACE(row.what);
        m_folder.Put("device.db", row.bytes);
        m_folder.Put("device.db-wal", "left over");
        OpenedStore opened = Open();
        ASSERT_EQ(opened.outcome, StoreOutcome::kReplaced);
        ASSERT_TRUE(opened.movedAside);
        const std::string name = opened.movedAside->filename();
        EXPECT_EQ(name.substr(0, 24), "device-2026-11-22-142233");
        EXPECT_EQ(m_folder.Get(name), row.bytes);
        EXPECT_EQ(m_folder.Get(name + "-wal"), "left over");
        EXPECT_EQ(Setting(*opened.store), "");
        EXPECT_TRUE(opened.store->Registry().Set(kMachine, u"K", u"v", {RegistryType::kBinary, "new"}));
        opened.store.reset();
        opened = Open();
        EXPECT_EQ(opened.outcome, StoreOutcome::kOpened) << "told once";
        EXPECT_EQ(Setting(*opened.store), "new");
        opened.store.reset();
    }
    EXPECT_TRUE(fs::exists(m_folder / "device-2026-11-22-142233.db.damaged"));
    EXPECT_TRUE(fs::exists(m_folder / "device-2026-11-22-142233-5.db.damaged")) << "none was written over";
}

TEST_F(DeviceStore, DamageMetDuringARunIsLookedIntoAtTheNextStart) {
    MakeStore();
    std::string bytes = m_folder.Get("device.db");
    for (std::size_t page = 8 * 4096; page + 4096 <= bytes.size(); page += 4096)
        bytes.replace(page, 4096, 4096, '\x55');
    m_folder.Put("device.db", bytes);
    {
        const OpenedStore opened = Open();
        EXPECT_EQ(opened.outcome, StoreOutcome::kOpened) << "nothing looked wrong yet";
        const auto db = opened.store->Objects().Open(u"db");
        ASSERT_NE(db, nullptr);
        EXPECT_FALSE(db->SeekPosition(kName, 0));
        EXPECT_FALSE(fs::exists(m_folder / "device.db-suspect"));
    }
    EXPECT_TRUE(fs::exists(m_folder / "device.db-suspect"));
    EXPECT_EQ(Open().outcome, StoreOutcome::kReplaced);
    EXPECT_EQ(Open().outcome, StoreOutcome::kOpened);
    m_folder.Put("device.db-suspect", "");
    EXPECT_EQ(Open().outcome, StoreOutcome::kOpened) << "a false alarm costs nothing";
    EXPECT_FALSE(fs::exists(m_folder / "device.db-suspect"));
}

TEST_F(DeviceStore, AnotherProgramsAndALaterVersionsFilesAreLeftAlone) {
    MakeStore();
    Sql("PRAGMA user_version = 2");
    const std::string newer = m_folder.Get("device.db");
    EXPECT_EQ(Open().outcome, StoreOutcome::kNewer);
    EXPECT_EQ(m_folder.Get("device.db"), newer);
    fs::remove(File());
    Sql("CREATE TABLE theirs(x)");
    const std::string theirs = m_folder.Get("device.db");
    const OpenedStore opened = Open();
    EXPECT_EQ(opened.outcome, StoreOutcome::kForeign);
    EXPECT_EQ(BuildOnce(opened.store->Objects(), 10), 10U) << "the run goes on in memory";
    EXPECT_EQ(m_folder.Get("device.db"), theirs);
    EXPECT_FALSE(opened.movedAside);
    fs::remove(File());
    MakeStore();
    Sql("DROP TABLE registry_value");
    EXPECT_EQ(Open().outcome, StoreOutcome::kReplaced) << "ours, but damaged";
}

TEST_F(DeviceStore, WhereNoFileCanBeMadeTheRunGoesOnInMemory) {
    m_folder.Put("file", "x");
    fs::create_directory(m_folder / "folder.db");
    for (const fs::path& path : {m_folder / "file/device.db", m_folder / "folder.db", fs::path("/proc/none/device.db"),
                                 fs::path(std::string(5000, 'p'))}) {
        const OpenedStore opened = OpenDeviceStore(path, m_clock);
        EXPECT_EQ(opened.outcome, StoreOutcome::kUnreachable) << path;
        EXPECT_TRUE(opened.store->Registry().Set(kMachine, u"K", u"v", {RegistryType::kBinary, "x"}));
        EXPECT_EQ(Setting(*opened.store), "x");
    }
}

TEST_F(DeviceStore, TwoProcessesThatMeetADamagedFileMoveItOnce) {
    for (int round = 0; round < 5; ++round) {
        m_folder.Put("device.db", "broken");
        std::vector<pid_t> children;
        for (int i = 0; i < 3; ++i) {
            const pid_t child = fork();
            if (child == 0) {
                const OpenedStore opened = Open();
                const std::u16string name(1, static_cast<char16_t>(u'a' + i));
                if (opened.outcome == StoreOutcome::kUnreachable) _exit(2);
                _exit(opened.store->Registry().Set(kMachine, u"K", name, {RegistryType::kBinary, "x"}) ? 0 : 1);
            }
            children.push_back(child);
        }
        for (const pid_t child : children) {
            int status = -1;
            waitpid(child, &status, 0);
            EXPECT_EQ(status, 0);
        }
        EXPECT_EQ(Open().store->Registry().ValueNames(kMachine, u"K").size(), 3U) << "nobody's writes were moved away";
        fs::remove(File());
    }
}

TEST_F(DeviceStore, TwoProcessesThatMakeAndBuildAtOnceEndWithOneDatabase) {
    int gate[2];
    ASSERT_EQ(pipe(gate), 0);
    std::vector<pid_t> children;
    for (int i = 0; i < 4; ++i) {
        const pid_t child = fork();
        if (child == 0) {
            char byte = 0;
            close(gate[1]);
            if (read(gate[0], &byte, 1) != 0) _exit(2);  // ends for all when the parent closes it
            const OpenedStore opened = Open();
            _exit(BuildOnce(opened.store->Objects(), 3000) == 3000 ? 0 : 1);
        }
        children.push_back(child);
    }
    close(gate[0]);
    close(gate[1]);
    for (const pid_t child : children) {
        int status = -1;
        waitpid(child, &status, 0);
        EXPECT_EQ(status, 0);
    }
    EXPECT_EQ(Open().store->Objects().Open(u"db")->Count(), 3000U);
}

}  // namespace
}  // namespace rlx
