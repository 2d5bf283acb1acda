#include "weather/weather_settings.h"

#include "platform/fake/memory_file_system.h"
#include "platform/fake/memory_registry.h"
#include "weather/icon_set.h"
#include "weather/weather_list.h"

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

TEST(WeatherList, FollowsTheListOfCities) {
    const std::string two = "2\nBern;Switzerland;bern_switzerland\nParis;France;paris_france\n";
    const struct {
        const char* name;
        std::string list;
        WeatherPlaceChange change;
        std::string after;
    } rows[] = {
        {"came",
         two,
         {{}, u"S\u00E3o Tom\u00E9:L'Isle"},
         "3\nBern;Switzerland;bern_switzerland\nParis;France;paris_france\nS\xE3o Tom\xE9;L'Isle;sao-tome_lisle\n"},
        {"its feed name is taken",
         two,
         {{}, u"P\u00E1ris:France"},
         "3\nBern;Switzerland;bern_switzerland\nParis;France;paris_france\nP\xE1ris;France;paris_france-2\n"},
        {"went", two, {u"Bern:Switzerland", {}}, "1\nParis;France;paris_france\n"},
        {"went, but was not there", two, {u"Rome:Italy", {}}, two},
        {"renamed",
         two,
         {u"Paris:France", u"Lutetia:Gaul"},
         "2\nBern;Switzerland;bern_switzerland\nLutetia;Gaul;paris_france\n"},
        {"renamed, but was not there", "0\n", {u"Paris:France", u"Lutetia:Gaul"}, "1\nLutetia;Gaul;lutetia_gaul\n"},
        {"an end mark stays behind",
         "9\nBern;Switzerland;b\n>\nnote",
         {{}, u"A:B"},
         "2\nBern;Switzerland;b\nA;B;a_b\n>\nnote"},
    };
    for (const auto& row : rows) {
        CMemoryFileSystem files;
        files.files["/cities.wet"] = row.list;
        EXPECT_TRUE(FollowCityChange(files, "/cities.wet", row.change)) << row.name;
        EXPECT_EQ(files.files["/cities.wet"], row.after) << row.name;
    }
    CMemoryFileSystem files;
    EXPECT_FALSE(FollowCityChange(files, "/cities.wet", {{}, u"A:B"}));
    files.files["/cities.wet"] = two;
    files.readOnly.insert("/cities.wet");
    EXPECT_FALSE(FollowCityChange(files, "/cities.wet", {{}, u"A:B"}));
}

}  // namespace
}  // namespace rlx
