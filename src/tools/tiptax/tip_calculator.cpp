#include "tools/tiptax/tip_calculator.h"

#include <cmath>

#include "base/number.h"
#include "shell/boxes.h"
#include "tools/tiptax/text_ids.h"

namespace rlx {

namespace {

constexpr int kDecimals = 2;
constexpr double kMaxRate = 100;  // percent

}  // namespace

CTipCalculator::CTipCalculator(const ITexts& texts, IMessageBoxes& boxes) : m_texts(texts), m_boxes(boxes) {
    Compute(TipRate::kSecond, TipRate::kFirst);
}

void CTipCalculator::EditBill(std::u16string_view text) {
    m_bill.Edit(text);
    // Here the first rate is added first, elsewhere the second one: sums of doubles depend on the order.
    Compute(TipRate::kFirst, TipRate::kSecond);
}

void CTipCalculator::EditRate(TipRate rate, std::u16string_view text) {
    Rate(rate).field.Edit(text);
    Validate(Rate(rate).field);
    Compute(TipRate::kSecond, TipRate::kFirst);
}

void CTipCalculator::SetAdded(TipRate rate, bool added) {
    Rate(rate).added = added;
    Compute(TipRate::kSecond, TipRate::kFirst);
}

void CTipCalculator::Validate(CUndoField& field) {
    const double value = ParseNumber(field.Text());
    if (value >= 0 && value <= kMaxRate) return;
    m_boxes.Show(ErrorBox(m_texts, m_texts.Text(kTextRateRange)));
    if (field.CanUndo()) {
        field.Undo();
    } else {
        field.Set(u"0");
    }
}

void CTipCalculator::Compute(TipRate addedFirst, TipRate addedLast) {
    for (const TipRate rate : {TipRate::kFirst, TipRate::kSecond})
        Rate(rate).amount = u"= " + FormatFixed(AmountOf(rate), kDecimals);
    double total = Bill();
    for (const TipRate rate : {addedFirst, addedLast}) {
        if (Rate(rate).added) total = AmountOf(rate) + total;
    }
    m_total = FormatFixed(total, kDecimals);
}

double CTipCalculator::AmountOf(TipRate rate) const {
    return Bill() * ParseNumber(Rate(rate).field.Text()) * 0.01;
}

double CTipCalculator::Bill() const {
    const double bill = ParseNumber(m_bill.Text());
    return std::isfinite(bill) ? bill : 0;
}

}  // namespace rlx
