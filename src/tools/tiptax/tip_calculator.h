#pragma once

#include <array>
#include <cstddef>
#include <string>
#include <string_view>

#include "platform/message_boxes.h"
#include "shell/texts.h"
#include "tools/tiptax/undo_field.h"

namespace rlx {

/// The two rates of the page, the upper field and the one below it. They are treated alike.
enum class TipRate { kFirst, kSecond };

/// What a bill comes to with two percentages on it, each added to the total or not. Everything is computed anew after
/// each change. Does not own texts and boxes; user-interface thread.
class CTipCalculator {
public:
    CTipCalculator(const ITexts& texts, IMessageBoxes& boxes);

    /// A text without a number at its start counts as 0, and so does one that is no finite number.
    void EditBill(std::u16string_view text);

    /// A rate below 0 or above 100 is refused with a message; the field takes its last edit back.
    void EditRate(TipRate rate, std::u16string_view text);

    /// Whether the amount of that rate is added to the total; at first both are.
    void SetAdded(TipRate rate, bool added);

    const std::u16string& BillText() const { return m_bill.Text(); }
    const std::u16string& RateText(TipRate rate) const { return Rate(rate).field.Text(); }
    bool IsAdded(TipRate rate) const { return Rate(rate).added; }

    /// "= 15.00"
    const std::u16string& AmountText(TipRate rate) const { return Rate(rate).amount; }

    /// "123.00"
    const std::u16string& TotalText() const { return m_total; }

private:
    struct RateField {
        CUndoField field{u"0"};
        bool added = true;
        std::u16string amount;
    };

    void Validate(CUndoField& field);
    void Compute(TipRate addedFirst, TipRate addedLast);
    double AmountOf(TipRate rate) const;
    double Bill() const;
    RateField& Rate(TipRate rate) { return m_rates[static_cast<std::size_t>(rate)]; }
    const RateField& Rate(TipRate rate) const { return m_rates[static_cast<std::size_t>(rate)]; }

    const ITexts& m_texts;
    IMessageBoxes& m_boxes;
    CUndoField m_bill{u"0"};
    std::array<RateField, 2> m_rates;
    std::u16string m_total;
};

}  // namespace rlx
