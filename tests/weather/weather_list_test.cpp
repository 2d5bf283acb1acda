#include "weather/weather_list.h"

#include <gtest/gtest.h>

#include "platform/fake/memory_file_system.h"

namespace rlx {
namespace {

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
