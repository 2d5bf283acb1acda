#include "base/number.h"

#include <cmath>
#include <cstdio>
#include <cstring>

namespace rlx {
namespace {

TEST(Number, ReadsWhatTheCLocaleReads) {
    const struct {
        const char16_t* text;
        double value;
    } rows[] = {
        {u"  -3.5e2x", -350},
        {u"+-7", 0},
        {u"", 0},
        {u".5", 0.5},
        {u"1e", 1},
        {u"1e+", 1},
        {u"0,018927059", 0},
        {u"907,18474", 907},
        {u"1.0e-20", 1e-20},
        {u"0x1F", 31},
        {u"1e400", INFINITY},
        {u"inf", INFINITY},
        {u"\u00A05", 0},
        {u"4.9406564584124654e-324", 4.9406564584124654e-324},
        {u"\u0665", 0},
    };
    for (const auto& row : rows)
        EXPECT_EQ(ParseNumber(row.text), row.value) << row.value;
    EXPECT_TRUE(std::isnan(ParseNumber(u"nan")));
    const std::u16string manyDigits = std::u16string(5000, u'9');
    EXPECT_EQ(ParseNumber(manyDigits), INFINITY);
    EXPECT_EQ(ParseNumber(u"0." + std::u16string(5000, u'0') + u"1"), 0.0);
}

TEST(Number, IntegersStopAndClamp) {
    EXPECT_EQ(ParseInteger(u" -330;"), -330);
    EXPECT_EQ(ParseInteger(u"x5"), 0);
    EXPECT_EQ(ParseInteger(std::u16string(400, u'9')), 2147483647);
    EXPECT_EQ(ParseInteger(u"-99999999999"), -2147483647 - 1);
    EXPECT_EQ(ParseWholeInteger(u"12", 0, 12), 12);
    for (const char16_t* bad : {u"", u"+", u"12 ", u" 12", u"1e1", u"+-1", u"13", u"-1", u"99999999999999999999"}) {
        EXPECT_FALSE(ParseWholeInteger(bad, 0, 12)) << ParseInteger(bad);
    }
}

TEST(Number, FormatsAsPrintf) {
    const double values[] = {
        0,    -0.0,      1,       1.005,  2.675, 1e21,   1.0 / 3,   671.67,   1e-7, 123456789012345678.0,
        1e15, 999999.95, -459.67, 1e-320, 1e308, 100000, 907.18474, 0.1 + 0.2};
    for (const double value : values) {
        char text[512];
        std::snprintf(text, sizeof text, "%.2f", value);
        EXPECT_EQ(FormatFixed(value, 2), std::u16string(text, text + std::strlen(text))) << text;
        std::snprintf(text, sizeof text, "%.15g", value);
        EXPECT_EQ(FormatGeneral(value, 15), std::u16string(text, text + std::strlen(text))) << text;
    }
    EXPECT_EQ(FormatGeneral(INFINITY, 15), u"inf");
    EXPECT_EQ(FormatFixed(-INFINITY, 2), u"-inf");
    EXPECT_EQ(FormatTwoDigits(-1), u"0-1");
    EXPECT_EQ(FormatTwoDigits(9), u"09");
    EXPECT_EQ(FormatTwoDigits(10), u"10");
}

}  // namespace
}  // namespace rlx
