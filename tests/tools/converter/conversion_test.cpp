#include "tools/converter/conversion.h"

#include <cmath>

#include "base/number.h"
#include "base/text.h"
#include "platform/fake/memory_registry.h"
#include "platform/fake/scripted_message_boxes.h"
#include "shell/setting_names.h"
#include "support/number_texts.h"
#include "tools/converter/converter_page.h"
#include "tools/converter/unit_search.h"

namespace rlx {
namespace {

UnitTables SeedTables() {
    std::vector<UnitRecord> rows;
    for (std::size_t category = 0; category < kCategoryCount; ++category) {
        for (const SeedUnit& unit : SeedUnits(category))
            rows.push_back({CategoryCode(category), std::u16string(unit.name), std::u16string(unit.factor)});
    }
    return TablesFromRows(rows);
}

TEST(Conversion, GivesTheResultFieldAsShown) {
    struct {
        std::u16string value, from, to, result;
    } const kRows[] = {
        {u"1", u"Short ton", u"kg - Kilogram", u"907.18474"},
        {u"3", u"Liter", u"Cup [US]", u"{40707}"},
        {u"0", u"Cup [US]", u"bucket [US]", u"{40708}"},
        {u"1e400", u"acre ", u"hectare", u"{40707}"},
        {u" 12,5 km", u"Hectogram", u"Megagram", u"0.0012"},
        {u"100", u"°C - Degree Celsius", u"Degree Reaumur", u"80"},
        {u"100", u"°C - Degree Celsius", u"Degree Rankine", u"671.67"},
        {u"300", u"K - Kelvin", u"°C - Degree Celsius", u"26.85"},
        {u"80", u"Degree Reaumur", u"°C - Degree Celsius", u"100"},
        {u"491.67", u"Degree Rankine", u"K - Kelvin", u"273.15"},
    };
    const test::CNumberTexts texts;
    const UnitTables tables = SeedTables();
    for (const auto& row : kRows) {
        const UnitPair pair = FindUnitPair(tables, row.from, row.to, std::nullopt);
        ASSERT_EQ(pair.status, PairStatus::kFound) << ToUtf8(row.from) << " " << ToUtf8(row.to);
        const auto result = Convert(ParseNumber(row.value), tables, pair.category, pair.from, pair.to);
        ASSERT_TRUE(result) << ToUtf8(row.from);
        EXPECT_EQ(ResultText(*result, texts), row.result) << ToUtf8(row.value + u" " + row.from + u" " + row.to);
    }
}

TEST(UnitSearch, ResolvesWholeNamesAndBeginnings) {
    using enum PairStatus;
    struct {
        std::u16string from, to;
        std::optional<std::size_t> category;
        PairStatus status;
        std::u16string found;  ///< the names found, or the wrong word
    } const kRows[] = {
        {u"inch", u"cm", {}, kFound, u"Inch|cm - Centimeter"},
        {u"yard", u"tatami", {}, kFound, u"yard|tatami"},  // in these letters only an area
        {u"Yard", u"Feet", {}, kNeedsCategory, u"Yard"},
        {u"Dram", u"Grain", 6, kFound, u"Dram|Grain"},
        {u"square mile", u"square k", 0, kNotFound, u"square k"},
        {u"Mile", u"kilopond/square m", {}, kDifferentCategories, u"kilopond/square m"},
    };
    const UnitTables tables = SeedTables();
    for (const auto& row : kRows) {
        const UnitPair pair = FindUnitPair(tables, row.from, row.to, row.category);
        EXPECT_EQ(pair.status, row.status) << ToUtf8(row.from + u" " + row.to);
        const auto& units = tables[pair.category];
        EXPECT_EQ(pair.status == kFound ? units[pair.from].name + u"|" + units[pair.to].name : pair.word, row.found);
    }
    test::CNumberTexts texts;
    EXPECT_EQ(PairMessage(FindUnitPair(tables, u"Dram", u"Pony", {}), texts),
              u"{32944}Dram{40725}5 {32921}; 6 {32922}");
    EXPECT_EQ(PairMessage(FindUnitPair(tables, u"Mile", u"kilopond/square m", {}), texts),
              u"{32944}kilopond/square m{40726}");
    EXPECT_EQ(PairMessage(FindUnitPair(tables, u"Pound", u"dek", 5), texts), u"{32944}Pound{40723}");
    EXPECT_EQ(PairMessage(FindUnitPair(tables, u"Stere", u"pip", 5), texts), u"{32944}pip{40724}Pipe [UK]; Pipe [US]");
}

TEST(UnitSearch, ListsBeginningsBeforeTheRest) {
    const UnitTables tables = SeedTables();
    std::vector<std::u16string> names;
    for (const std::size_t i : MatchingUnits(tables[1], u"MI"))
        names.push_back(tables[1][i].name);
    EXPECT_EQ(names, (std::vector<std::u16string>{u"Microinch", u"Mile", u"mm - Millimeter",
                                                  u"Nmi(NM,M) - Nautical Mile", u"Statue Mile (Mile)"}));
}

class ConverterPageTest : public testing::Test {
protected:
    ConverterPageTest() { m_page.SetTables(SeedTables()); }

    test::CNumberTexts m_texts;
    CScriptedMessageBoxes m_boxes;
    CMemoryRegistry m_registry;
    CRegistryStore m_settings{m_registry};
    CConverterPage m_page{m_texts, m_boxes, m_settings};
};

TEST_F(ConverterPageTest, SaysWhatLiesBelowAbsoluteZero) {
    m_page.SelectCategory(kTemperatures);
    m_page.SetValue(u"-273.15");
    EXPECT_TRUE(m_boxes.shown.empty());
    m_page.SetValue(u"-300");
    ASSERT_EQ(m_boxes.shown.size(), 1U);
    EXPECT_EQ(m_boxes.shown[0].text, u"{32915}");
    EXPECT_EQ(m_page.ResultText(), u"0");
    EXPECT_EQ(m_page.ValueText(), u"-300");
    m_page.SetValue(u"-3000");
    EXPECT_EQ(m_boxes.shown.size(), 1U) << "typing on";
    m_page.SelectTo(1);
    EXPECT_EQ(m_boxes.shown.size(), 2U) << "another unit is another question";
    m_page.SetValue(u"-30");
    m_page.SetValue(u"-300");
    EXPECT_EQ(m_boxes.shown.size(), 3U) << "below again";
}

TEST_F(ConverterPageTest, KeepsUnitsByNameAndRemembersPairs) {
    m_page.SelectCategory(6);
    m_page.SelectFrom(17);
    m_page.SelectTo(9);
    m_page.Remember();
    m_page.SelectCategory(1);
    m_page.Remember();
    for (int twice = 0; twice < 2; ++twice) {
        m_page.Recall(m_page.Recent().back());
        m_page.Remember();
    }
    ASSERT_EQ(m_page.Recent().size(), 2U);
    m_page.Recall({6, u"Pound", u"kg - Kilogram"});

    UnitTables shorter = SeedTables();
    shorter[6].erase(shorter[6].begin());
    m_page.SetTables(shorter);
    EXPECT_EQ(m_page.Units()[m_page.From()].name, u"Pound");
    EXPECT_EQ(m_page.Units()[m_page.To()].name, u"kg - Kilogram");

    m_page.SetTables({});  // the database cannot be read any more
    m_page.SetValue(u"5");
    EXPECT_EQ(m_page.ResultText(), u"0");
}

TEST_F(ConverterPageTest, RecentPairsOutliveTheProgramButNotTheirUnits) {
    m_page.SelectCategory(1);
    for (std::size_t to = 0; to < 10; ++to) {
        m_page.SelectTo(to);
        m_page.Remember();
    }
    const std::vector<RecentPair> all = m_page.Recent();
    ASSERT_EQ(all.size(), kMaxRecentPairs);
    EXPECT_EQ(all[0], (RecentPair{1, u"Cable (in)", u"Microinch"}));

    UnitTables tables = SeedTables();
    CConverterPage later(m_texts, m_boxes, m_settings);
    EXPECT_TRUE(later.Recent().empty()) << "units that cannot be read";
    later.SetTables(tables);
    EXPECT_EQ(later.Recent(), all);
    std::erase_if(tables[1], [](const Unit& unit) { return unit.name == u"Microinch"; });
    later.SetTables(tables);
    EXPECT_EQ(later.Recent(), std::vector<RecentPair>(all.begin() + 1, all.end()));
}

TEST(RecentPairs, LinesThatNameNoPairAreLeftOut) {
    CMemoryRegistry registry;
    CRegistryStore settings(registry);
    settings.WriteString(RootOf(keys::kConverter), keys::kConverter, names::kRecentPairs,
                         u"1\tFeet\tInch\n\n7\tFeet\tInch\n1\tFeet\n12\tFeet\tInch\n-\t\t\n6\tPound\tTonne");
    EXPECT_EQ(LoadRecentPairs(settings), (std::vector<RecentPair>{{1, u"Feet", u"Inch"}, {6, u"Pound", u"Tonne"}}));
}

}  // namespace
}  // namespace rlx
