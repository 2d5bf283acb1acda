#include "places/city_list_store.h"

#include <functional>

#include "base/text.h"
#include "places/rules_date.h"
#include "places/rules_refresh.h"
#include "platform/fake/failing_registry.h"
#include "platform/fake/fixed_clock.h"
#include "platform/fake/fixed_time_zones.h"
#include "platform/fake/memory_file_system.h"
#include "platform/fake/scripted_message_boxes.h"
#include "platform/sqlite/device_store.h"
#include "shell/clock_settings.h"
#include "shell/resources.h"
#include "shell/setting_names.h"
#include "support/temp_folder.h"

namespace rlx {
namespace {

std::string Line(const std::string& name) {
    return "Z;" + name + ";L;1;2;3;0;0;0;0;0\n";
}

/// One start of the program on a device whose files and store outlast it.
class CRun {
public:
    CRun(const std::filesystem::path& store, CMemoryFileSystem& files, CFailurePlan& plan)
        : m_store(OpenDeviceStore(store, m_clock).store),
          m_registry(m_store->Registry(), plan),
          cities(m_store->Objects(), files, m_boxes, m_texts, "/app/cities.lst"),
          lists(m_store->Objects(), m_registry, files, cities, "/app/cities.lst"),
          settings(m_store->Registry()) {}

    void Choose(std::u16string_view key, std::u16string_view name, CityIndex city) {
        settings.WriteDword(RootOf(key), key, name, city);
    }
    std::string Chosen(std::u16string_view key, std::u16string_view name) {
        const CityIndex city = settings.ReadDword(RootOf(key), key, name);
        return settings.Status() == ReadStatus::kRead ? Narrow(cities.GetName(city)) : "-";
    }
    /// Home, the clocks and the weather places.
    std::string Choices() {
        std::string all = Chosen(keys::kWorldClock, names::kHomeClock);
        for (const auto name : names::kClocks)
            all += " " + Chosen(keys::kWorldClock, name);
        for (const auto name : names::kWeatherPlaces)
            all += " " + Chosen(keys::kWeather, name);
        all +=
            " | " + Narrow(settings.ReadString(RootOf(keys::kAlarms), keys::kAlarms, names::kAlarmCities[2])) + " | ";
        return all + Narrow(settings.ReadString(RootOf(keys::kRoamlytix), keys::kRoamlytix, names::kHomeName));
    }

private:
    CFixedClock m_clock;
    std::unique_ptr<CDeviceStore> m_store;
    CFailingRegistry m_registry;
    CScriptedMessageBoxes m_boxes;
    const CResources m_texts;

public:
    CCityDatabase cities;
    CCityListStore lists;
    CRegistryStore settings;
};

class CityListStore : public ::testing::Test {
protected:
    void SetUp() override { Reset(); }
    void Reset() {
        plan = {};
        ++m_store;
        files.files["/app/cities.lst"] = "4\n" + Line("B") + Line("D") + Line("F") + Line("H");
        CRun run = Start();
        run.cities.EnsureCreated();
        run.Choose(keys::kWorldClock, names::kHomeClock, 1);
        run.Choose(keys::kWorldClock, names::kClocks[0], 2);
        run.Choose(keys::kWorldClock, names::kClocks[1], 3);
        run.Choose(keys::kWorldClock, names::kClocks[2], 99);  // no such city
        run.Choose(keys::kWeather, names::kWeatherPlaces[1], 3);
        run.settings.WriteString(RootOf(keys::kRoamlytix), keys::kRoamlytix, names::kHomeName, u"D");
        run.settings.WriteString(RootOf(keys::kAlarms), keys::kAlarms, names::kAlarmCities[2], u"D:L");
    }
    CRun Start() { return CRun(folder / ("device" + std::to_string(m_store)), files, plan); }

    test::CTempFolder folder;
    CFailurePlan plan;
    CMemoryFileSystem files{plan};

private:
    int m_store = 0;
};

/// Puts A in front, renames D to K (behind all others) and deletes F.
bool EditAll(CityList& list, std::vector<CityRename>& renames) {
    list.cities[1].name = u"K";
    renames.push_back({u"D:L", u"K:L"});
    list.cities.erase(list.cities.begin() + 2);
    list.cities.insert(list.cities.begin(), list.cities[0]);
    list.cities[0].name = u"A";
    return true;
}

constexpr char kBefore[] = "D F H  - - H - - | D:L | D";
constexpr char kAfter[] =
    "K A H  - - H - - | K:L | K";  // the clock of F has its default: number 684 is not there, so 0

TEST_F(CityListStore, KeepsEachChoiceOnItsCity) {
    CRun run = Start();
    ASSERT_EQ(run.Choices(), kBefore);
    const CityListResult result = run.lists.Change(EditAll);
    EXPECT_EQ(result.state, CityListChange::kDone);
    EXPECT_EQ(result.gone, std::vector<std::u16string>{u"F, L"});
    EXPECT_EQ(run.Choices(), kAfter);
    EXPECT_EQ(files.files["/app/cities.lst"], "4\n" + Line("A") + Line("B") + Line("K") + Line("H"));
}

/// Each choice is on its city or, once the change is through, where the change puts it; nowhere else, at any instant.
TEST_F(CityListStore, SurvivesDeathAtEveryWrite) {
    int deaths = 0;
    for (bool died = true; died; ++deaths) {
        Reset();
        plan.DieAt(deaths + 1);
        died = false;
        try {
            Start().lists.Change(EditAll);
        } catch (const CFailurePlan::Died&) {
            died = true;
        }
        plan = {};
        CRun next = Start();
        const bool changed = files.files["/app/cities.lst"].find(";A;") != std::string::npos;
        const bool through = changed && !IsCityChangeUnfinished(next.settings);
        EXPECT_EQ(next.Choices(), through ? kAfter : kBefore) << deaths;
        next.lists.Finish();
        EXPECT_EQ(next.Choices(), changed ? kAfter : kBefore) << deaths;
        EXPECT_EQ(next.cities.Count(), 4U);
        EXPECT_FALSE(IsCityChangeUnfinished(next.settings));
    }
    EXPECT_GE(deaths, 6);
}

TEST_F(CityListStore, DefaultsThatAreNotStoredStayOnTheirCity) {
    std::string list = "1000\n";
    for (int i = 1000; i < 2000; ++i)
        list += Line("C" + std::to_string(i));
    files.files["/app/cities.lst"] = list;
    CRun(folder / "fresh", files, plan).lists.Change([](CityList& cities, std::vector<CityRename>&) {
        cities.cities.insert(cities.cities.begin() + 700, cities.cities[0]);
        cities.cities[700].name = u"C1699b";
        return true;
    });
    CRun run(folder / "fresh", files, plan);
    const ClockSettings clocks = LoadClockSettings(run.settings);
    EXPECT_EQ(clocks, (ClockSettings{0, {684, 757, 565, 989}, 0}));
}

TEST_F(CityListStore, RefreshWritesRulesOfKnownZonesAndTheirDate) {
    files.files["/app/cities.lst"] = "2\nZ;A;L;1;2;3;0;0;0;0;0\r\n-;B;L;1;2;3;1;9;9;9;9\n";
    CFixedTimeZones zones;
    zones.zones["Z"] = {{0, 7200}};
    CRun run(folder / "refresh", files, plan);
    const RulesRefresh refresh = RefreshRules(run.lists, zones, files, "/app", {2027, 1, 1});
    EXPECT_EQ(refresh.changed, 1U);
    EXPECT_EQ(refresh.kept, 1U);
    EXPECT_EQ(files.files["/app/cities.lst"], "2\nZ;A;L;1;2;2;0;0;0;0;0\r\n-;B;L;1;2;3;1;9;9;9;9\n");
    EXPECT_EQ(ReadRulesDate(files, "/app"), (Date{2027, 1, 1}));
    EXPECT_EQ(run.cities.GetGmt(0), u"2");
    const CFixedTimeZones none;
    EXPECT_EQ(RefreshRules(run.lists, zones = none, files, "/app", {2028, 1, 1}).state, RulesRefresh::State::kNoZones);
    EXPECT_EQ(ReadRulesDate(files, "/app"), (Date{2027, 1, 1}));
}

}  // namespace
}  // namespace rlx
