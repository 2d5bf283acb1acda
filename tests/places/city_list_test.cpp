#include "places/city_list.h"

#include <gtest/gtest.h>

namespace rlx {
namespace {

TEST(CityList, KeepsWhatNobodyChanged) {
    const std::string a = "x;A;L;1;2;3;0;4;5;6;7\n";
    const struct {
        const char* name;
        std::string before;
        std::string after;
    } rows[] = {
        {"plain", "1\n" + a, "1\n" + a},
        {"a number too large", "9\n" + a, "1\n" + a},
        {"an end mark with notes behind it", "9\n" + a + "x;>;\nnotes; more\n", "1\n" + a + "x;>;\nnotes; more\n"},
        {"lines beyond the number", "1\n" + a + "x;B", "1\n" + a + "x;B"},
        {"no line feed at the end", "1\nx;A;L;1;2;3;0;4;5;6;7", "1\n" + a},
        {"a last line cut short", "1\nx;A;L;1", "1\nx;A;L;1;;;;;;;;;;;;;\n\n"},
        {"a doubled delimiter", "1\nx;A;;L;1;2;3;0;4;5;6;7\n", "1\n" + a},
        {"nothing", "", "0\n"},
    };
    for (const auto& row : rows) {
        const CityList list = ParseCityList(row.before);
        EXPECT_EQ(CityListBytes(list), row.after) << row.name;
        EXPECT_EQ(ParseCityList(row.after).cities, list.cities) << row.name;
    }
}

TEST(CityList, RefusesWhatWouldBeReadAsSomethingElse) {
    const CityList good{{{u"x", u"A", u"L", u"1", u"2", u"3", {u"0", u"0", u"0", u"0", u"0"}}}, ""};
    ASSERT_TRUE(CityListBytes(good));
    for (const std::u16string name : {u"A;B", u">", u"Łódź"}) {
        CityList list = good;
        list.cities[0].name = name;
        EXPECT_FALSE(CityListBytes(list));
    }
    CityList list = good;
    list.cities[0].name = std::u16string(2000, u'a');
    EXPECT_FALSE(CityListBytes(list));
}

}  // namespace
}  // namespace rlx
