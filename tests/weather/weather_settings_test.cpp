#include "weather/weather_settings.h"

#include "platform/fake/memory_file_system.h"
#include "platform/fake/memory_registry.h"
#include "weather/icon_set.h"

namespace rlx {
namespace {

constexpr auto kRoot = RegistryRoot::kLocalMachine;
constexpr char16_t kKey[] = u"Roamlytix\\weather";

class WeatherSettings : public testing::Test {
protected:
    CMemoryRegistry m_registry;
    CRegistryStore m_store{m_registry};
    CWeatherSettings m_settings{m_store};
};

TEST_F(WeatherSettings, FirstPlacesAreThoseOfTheClocksAndWrittenAtOnce) {
    EXPECT_EQ(m_settings.LoadPlaces(), (CWeatherSettings::Places{0, 684, 756, 565}));
    EXPECT_EQ(m_store.ReadDword(kRoot, kKey, u"wetp4"), 565U);
    EXPECT_EQ(m_registry.List().size(), 4U) << "the clocks' own values are left to the clocks";
    m_store.WriteDword(kRoot, u"Roamlytix\\wrldclk", u"clock", 77);
    EXPECT_EQ(m_settings.LoadPlaces()[0], 0U) << "chosen once, places do not follow the clocks";
}

TEST_F(WeatherSettings, AMissingValueOfAKeyThatIsThereIsNotWritten) {
    m_store.WriteDword(kRoot, u"Roamlytix\\wrldclk", u"clock", 77);
    m_settings.SavePlace(1, 5);
    m_settings.SavePlace(4, 9);
    EXPECT_EQ(m_settings.LoadPlaces(), (CWeatherSettings::Places{77, 5, 756, 565}));
    EXPECT_EQ(m_registry.List().size(), 2U);
}

TEST_F(WeatherSettings, OddNumbersFallBack) {
    m_store.WriteDword(kRoot, kKey, u"fore", 4);
    m_store.WriteDword(kRoot, kKey, u"daybyday", 2);
    m_store.WriteDword(kRoot, u"Roamlytix", u"fara", 2);
    EXPECT_EQ(m_settings.ShownPlace(), 0U);
    EXPECT_FALSE(m_settings.DayByDay());
    EXPECT_EQ(m_settings.Unit(), TemperatureUnit::kCelsius);
}

TEST(IconSet, IsTheUsersElseTheSkinsElseTheDefault) {
    CMemoryFileSystem files;
    for (const char* file : {"/app/wiconset/fog.png", "/app/wiconset/not-available.png", "/app/wiconsets/Line/fog.png",
                             "/app/skins/Night/icons/fog.png", "/secret/fog.png"})
        files.files[file] = "x";
    const struct {
        const char* name;
        std::u16string_view chosen;
        std::u16string_view ofSkin;
        const char* folder;
    } rows[] = {
        {"nothing chosen", u"", u"default", "/app/wiconset"},
        {"skin's own", u"", u"\\icons", "/app/skins/Night/icons"},
        {"chosen", u"\\wiconsets\\Line", u"\\icons", "/app/wiconsets/Line"},
        {"chosen one is gone", u"\\wiconsets\\Gone", u"\\icons", "/app/skins/Night/icons"},
        {"out of the folder", u"..\\secret", u"\\..\\..\\..\\secret", "/app/wiconset"},
    };
    for (const auto& row : rows)
        EXPECT_EQ(ChooseIconSet(files, {"/app", "/app/skins/Night", row.chosen, row.ofSkin}), row.folder) << row.name;
    EXPECT_EQ(FindIconSets(files, "/app"), std::vector<std::u16string>{u"\\wiconsets\\Line"});
    EXPECT_EQ(IconFile(files, "/app/wiconset", "fog"), "/app/wiconset/fog.png");
    EXPECT_EQ(IconFile(files, "/app/wiconset", "rain"), "/app/wiconset/not-available.png");
}

}  // namespace
}  // namespace rlx
