#include "tools/converter/unit_database.h"

#include "base/number.h"
#include "base/text.h"
#include "platform/fake/memory_object_store.h"
#include "platform/fake/scripted_message_boxes.h"
#include "support/number_texts.h"
#include "tools/converter/unit_editor.h"

namespace rlx {
namespace {

constexpr std::size_t kAreas = 0;
constexpr std::size_t kSpeeds = 3;
constexpr std::size_t kWeights = 6;

class UnitDatabaseTest : public testing::Test {
protected:
    UnitDatabaseTest() { EXPECT_TRUE(m_units.Open()); }

    std::vector<MessageBox> Shown() { return std::exchange(m_boxes.shown, {}); }

    CMemoryObjectStore m_store;
    test::CNumberTexts m_texts;
    CScriptedMessageBoxes m_boxes;
    CUnitDatabase m_units{m_store};
    CUnitEditor m_editor{m_units, m_texts, m_boxes};
};

TEST_F(UnitDatabaseTest, IsSeededOnceInCategoryOrder) {
    CUnitDatabase again(m_store);
    ASSERT_TRUE(again.Open());
    const std::vector<UnitRecord> rows = again.ReadAll();
    ASSERT_EQ(rows.size(), 350U);
    struct {
        std::size_t row;
        UnitRecord expected;
    } const kRows[] = {
        {0, {u"0", u"acre ", u"4046.8564224"}},
        {126, {u"1", u"Statue Mile (Mile)", u"1609"}},
        {257, {u"5", u"bucket [US]", u"0,018927059"}},
    };
    for (const auto& [row, expected] : kRows)
        EXPECT_EQ(rows[row], expected) << row << " " << ToUtf8(rows[row].name);
    EXPECT_EQ(m_store.SortOrdersOf(u"rlxConverters"), std::vector<PropertyId>{301});
}

TEST_F(UnitDatabaseTest, RefusalsSayWhyAndChangeNothing) {
    for (int i = 13; i < 150; ++i)
        ASSERT_EQ(m_units.Add(kSpeeds, u"speed " + FormatInteger(i), u"1"), UnitChange::kDone);
    const std::vector<UnitRecord> before = m_units.ReadAll();
    struct {
        std::size_t category;
        std::u16string name;
        std::u16string text;
    } const kRows[] = {
        {kWeights, u"tonNE", u"{32944}tonNE{32945}"},
        {kAreas, u" \t", u"{40720}"},
        {kTemperatures, u"Degree Newton", u"{40721}"},
        {kSpeeds, u"one too many", u"{40706}"},
    };
    for (const auto& [category, name, text] : kRows) {
        EXPECT_FALSE(m_editor.Add(category, name, u"2")) << ToUtf8(name);
        EXPECT_EQ(Shown(), std::vector{(MessageBox{u"{32923}", text, BoxIcon::kExclamation, BoxButtons::kOk})});
    }
    EXPECT_EQ(m_units.ReadAll(), before);
}

TEST(UnitDatabase, IsSeededWholeOrNotAtAll) {
    CMemoryObjectStore store;
    store.Failures().FailAt(200);
    CUnitDatabase units(store);
    EXPECT_FALSE(units.Open());
    EXPECT_TRUE(units.ReadTables()[kTemperatures].empty());
    EXPECT_EQ(units.Add(kAreas, u"pitch", u"7140"), UnitChange::kNotSaved);

    EXPECT_TRUE(units.Open());
    EXPECT_EQ(units.ReadAll().size(), 350U);
}

TEST(UnitDatabase, IsNotSeededTwiceByTwoProcesses) {
    CMemoryObjectStore store;
    store.BeforeNextTransact([&store] {
        CUnitDatabase other(store);
        EXPECT_TRUE(other.Open());
        EXPECT_EQ(other.Add(kAreas, u"pitch", u"7140"), UnitChange::kDone);
    });
    CUnitDatabase units(store);
    EXPECT_TRUE(units.Open());
    EXPECT_EQ(units.ReadAll().size(), 351U);
}

}  // namespace
}  // namespace rlx
