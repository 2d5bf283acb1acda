#include "tools/tiptax/tip_calculator.h"

#include "base/number.h"
#include "base/text.h"
#include "platform/fake/scripted_message_boxes.h"
#include "support/number_texts.h"
#include "tools/tiptax/bill_split.h"

namespace rlx {
namespace {

using enum TipRate;

class TipCalculatorTest : public testing::Test {
protected:
    test::CNumberTexts m_texts;
    CScriptedMessageBoxes m_boxes;
    CTipCalculator m_tip{m_texts, m_boxes};
};

TEST_F(TipCalculatorTest, AddsWhatIsTicked) {
    EXPECT_EQ(m_tip.AmountText(kFirst), u"= 0.00");
    EXPECT_EQ(m_tip.TotalText(), u"0.00");
    struct {
        std::u16string bill, first, second;
        bool addFirst, addSecond;
        std::u16string firstAmount, secondAmount, total;
    } const kRows[] = {
        {u"100", u"15", u"8", true, true, u"= 15.00", u"= 8.00", u"123.00"},
        {u"100", u"15", u"8", false, true, u"= 15.00", u"= 8.00", u"108.00"},
        {u"12abc", u"100", u"0", true, true, u"= 12.00", u"= 0.00", u"24.00"},
        {u" 19,99", u"10", u"5.5%", true, true, u"= 1.90", u"= 1.04", u"21.95"},
        {u"1e999", u"10", u"0", true, true, u"= 0.00", u"= 0.00", u"0.00"},
        {u"1234567890123", u"12.5", u"0", true, true, u"= 154320986265.38", u"= 0.00", u"1388888876388.38"},
    };
    for (const auto& row : kRows) {
        m_tip.EditBill(row.bill);
        m_tip.EditRate(kFirst, row.first);
        m_tip.EditRate(kSecond, row.second);
        m_tip.SetAdded(kFirst, row.addFirst);
        m_tip.SetAdded(kSecond, row.addSecond);
        EXPECT_EQ(m_tip.AmountText(kFirst), row.firstAmount) << ToUtf8(row.bill);
        EXPECT_EQ(m_tip.AmountText(kSecond), row.secondAmount) << ToUtf8(row.bill);
        EXPECT_EQ(m_tip.TotalText(), row.total) << ToUtf8(row.bill);
    }
    EXPECT_TRUE(m_boxes.shown.empty());
}

TEST_F(TipCalculatorTest, RefusedRateTakesTheLastEditBack) {
    m_tip.EditBill(u"50");
    m_tip.EditRate(kFirst, u"20");
    for (const auto* text : {u"100.01", u"-1", u"1e9", u"-inf", u"nan"}) {
        m_tip.EditRate(kFirst, text);
        ASSERT_EQ(m_boxes.shown.size(), 1U) << ToUtf8(text);
        EXPECT_EQ(m_boxes.shown[0], (MessageBox{u"{32923}", u"{41105}", BoxIcon::kExclamation, BoxButtons::kOk}));
        EXPECT_EQ(m_tip.RateText(kFirst), u"20") << ToUtf8(text);
        EXPECT_EQ(m_tip.TotalText(), u"60.00");
        m_boxes.shown.clear();
    }
    m_tip.EditRate(kSecond, u"101");
    EXPECT_EQ(m_tip.RateText(kSecond), u"0");
    for (const auto* text : {u"100", u"0", u"-0", u""})
        m_tip.EditRate(kSecond, text);
    EXPECT_EQ(m_boxes.shown.size(), 1U);
}

TEST(UndoField, HasOneStep) {
    CUndoField field(u"0");
    EXPECT_FALSE(field.CanUndo());
    field.Edit(u"1");
    field.Edit(u"12");
    field.Undo();
    EXPECT_EQ(field.Text(), u"1");
    field.Undo();
    EXPECT_EQ(field.Text(), u"12");
    field.Set(u"7");
    field.Undo();
    EXPECT_EQ(field.Text(), u"7");
}

TEST(Split, LosesNoCent) {
    struct {
        std::u16string total;
        int people;
        std::u16string shares;  ///< empty: refused
    } const kRows[] = {
        {u"100.00", 3, u"1x33.34 2x33.33"},
        {u"0.02", 3, u"2x0.01 1x0.00"},
        {u"19.99", 1, u"0x 1x19.99"},
        {u"99999999999999.99", 2, u""},
        {u"-5.00", 2, u""},
        {u"5", 2, u""},
        {u"5.00", 0, u""},
    };
    for (const auto& [total, people, shares] : kRows) {
        const std::optional<BillSplit> split = SplitTotal(total, people);
        std::u16string shown;
        if (split)
            shown = FormatInteger(split->larger) + u"x" + split->largerShare + u" " + FormatInteger(split->smaller) +
                    u"x" + split->smallerShare;
        EXPECT_EQ(shown, shares) << ToUtf8(total) << " " << people;
    }
}

}  // namespace
}  // namespace rlx
