#include "places/city_file.h"

#include <gtest/gtest.h>

#include "base/text.h"

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
        {"fewer promised than there are", "1\n" + a + b, cityA},
        {"more promised than there are", "9\n" + a, cityA},
        {"a promise without end", "2147483647\n" + a + b, cityA + " " + cityB},
        {"a promise beyond all numbers", "99999999999999999999\n" + a, cityA},
        {"a negative promise", "-1\n" + a, ""},
        {"no number at all", "many\n" + a, ""},
        {"a blank and words beside the number", " 1 city\n" + a + b, cityA},
        {"nothing", "", ""},
        {"the number only", "3", ""},
        {"the mark for a name", "3\n" + a + "x;>;\n" + b, cityA},
        {"the mark at the very end", "3\n" + a + "x;>", cityA},
        {"the mark for a longitude", "3\n" + a + "x;B;L;>;2;3;0;4;5;6;7\n" + b, cityA},
        {"the mark in the ninth field", "3\n" + a + "x;B;L;1;2;3;0;4;5;>;7\n" + b, cityA},
        {"the mark for a country is a country", "2\nx;A;>;1;2;3;0;4;5;6;7\n" + b, "A:>|1:2|3|0:4:5:6:7 " + cityB},
        {"the mark in the last field is a text", "2\nx;A;L;1;2;3;0;4;5;6;>\n" + b, "A:L|1:2|3|0:4:5:6:> " + cityB},
        {"a longer name that begins with the mark", "1\nx;>A;L;1;2;3;0;4;5;6;7\n", ">A:L|1:2|3|0:4:5:6:7"},
        {"a doubled delimiter moves the fields", "1\nx;A;;L;1;2;3;0;4;5;6;7\n", "A:L|1:2|3|0:4:5:6:7"},
        {"a moved line takes from the next", "1\nx;A;L;;1;2;3;0;4;5;6\ny;B\n", "A:L|1:2|3|0:4:5:6\ny:B"},
        {"an empty leading field", "1\n;x;A;L;1;2;3;0;4;5;6;7\n", "A:L|1:2|3|0:4:5:6:7"},
        {"an empty last field takes the next line", "2\nx;A;L;1;2;3;0;4;5;6;\n" + b,
         "A:L|1:2|3|0:4:5:6:x;B;L;1;2;3;0;4;5;6;7"},
        {"a short last line with a name", "2\n" + a + "x;B;L;1", cityA + " B:L|1:||::::"},
        {"a short last line without a name", "2\n" + a + "x;", cityA},
        {"an empty last line", "2\n" + a + "\n", cityA},
        {"a line without a name in the middle", "2\nx;;;L;1;2;3;0;4;5;6;7\n" + b, ":L|1:2|3|0:4:5:6:7 " + cityB},
        {"carriage returns stay", "1\r\nx;A;L;1;2;3;0;4;5;6;7\r\n", cityA + "\r"},
        {"a colon in a name", "1\nx;A:B;L;1;2;3;0;4;5;6;7\n", "A:B:L|1:2|3|0:4:5:6:7"},
    };
    for (const auto& row : rows)
        EXPECT_EQ(ReadAll(row.file), row.cities) << row.name;
}

TEST(CityFile, KeepsBytesAboveAsciiAndZero) {
    CMemoryStream file(std::string("1\nx;\xC5\0\xFF;L;1;2;3;0;4;5;6;7\n", 28));
    std::u16string place;
    ReadCityFile(file, [&](const CityLine& line) {
        place = line.place;
        return true;
    });
    EXPECT_EQ(place, std::u16string(u"\u00C5\0\u00FF:L", 5));
}

TEST(CityFile, StopsWhenACityIsRefused) {
    CMemoryStream file("3\nx;A;L;1;2;3;0;4;5;6;7\nx;B;L;1;2;3;0;4;5;6;7\nx;C;L;1;2;3;0;4;5;6;7\n");
    int taken = 0;
    EXPECT_FALSE(ReadCityFile(file, [&](const CityLine&) { return ++taken < 2; }));
    EXPECT_EQ(taken, 2);
}

}  // namespace
}  // namespace rlx
