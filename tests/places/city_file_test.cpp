#include "places/city_file.h"

#include "base/text.h"
#include "places/city_list.h"

namespace rlx {
namespace {

/// Each city as place|position|gmt|rule, a blank between cities.
std::string ReadAll(std::string bytes) {
    CMemoryStream file(std::move(bytes));
    std::string all;
    ReadCityFile(file, [&](const CityLine& line) {
        all += (all.empty() ? "" : " ") + Narrow(line.place) + "|" + Narrow(line.position) + "|" + Narrow(line.gmt) +
               "|" + Narrow(line.dstRule);
        return true;
    });
    return all;
}

TEST(CityFile, ReadsWhatItCanOfAnyBytes) {
    const std::string a = "x;A;L;1;2;3;0;4;5;6;7\n";
    const std::string b = "x;B;L;1;2;3;0;4;5;6;7\n";
    const std::string cityA = "A:L|1:2|3|0:4:5:6:7";
    const std::string cityB = "B:L|1:2|3|0:4:5:6:7";
    const struct {
        const char* name;
        std::string file;
        std::string cities;
    } rows[] = {
        {"two cities", "2\n" + a + b, cityA + " " + cityB},
        {"no line feed at the end", "1\nx;A;L;1;2;3;0;4;5;6;7", cityA},
        {"more promised than there are", "9\n" + a, cityA},
        {"a promise without end", "2147483647\n" + a + b, cityA + " " + cityB},
        {"a negative promise", "-1\n" + a, ""},
        {"the mark for a name", "3\n" + a + "x;>;\n" + b, cityA},
        {"the mark for a longitude", "3\n" + a + "x;B;L;>;2;3;0;4;5;6;7\n" + b, cityA},
        {"the mark for a country is a country", "2\nx;A;>;1;2;3;0;4;5;6;7\n" + b, "A:>|1:2|3|0:4:5:6:7 " + cityB},
        {"a doubled delimiter moves the fields", "1\nx;A;;L;1;2;3;0;4;5;6;7\n", "A:L|1:2|3|0:4:5:6:7"},
        {"an empty last field takes the next line", "2\nx;A;L;1;2;3;0;4;5;6;\n" + b,
         "A:L|1:2|3|0:4:5:6:x;B;L;1;2;3;0;4;5;6;7"},
        {"a short last line with a name", "2\n" + a + "x;B;L;1", cityA + " B:L|1:||::::"},
        {"an empty last line", "2\n" + a + "\n", cityA},
        {"carriage returns stay", "1\r\nx;A;L;1;2;3;0;4;5;6;7\r\n", cityA + "\r"},
        {"a colon in a name", "1\nx;A:B;L;1;2;3;0;4;5;6;7\n", "A:B:L|1:2|3|0:4:5:6:7"},
    };
    for (const auto& row : rows)
        EXPECT_EQ(ReadAll(row.file), row.cities) << row.name;
}

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
