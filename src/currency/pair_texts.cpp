#include "currency/pair_texts.h"

#include "currency/currency_convert.h"
#include "currency/text_ids.h"

namespace rlx {

ConvertedText ConvertTyped(std::u16string_view typed, const CurrencyEntry& from, const CurrencyEntry& to,
                           const ITexts& texts) {
    const auto amount = ParseAmount(typed);
    const auto converted = amount ? Convert(*amount, from.rate, to.rate) : std::nullopt;
    if (converted) return {FormatAmount(*converted), {}};
    if (!RateValue(from.rate) || !RateValue(to.rate)) return {{}, texts.Text(kTextRateUnknown)};
    if (typed.empty()) return {};
    return {{}, texts.Text(kTextNotAnAmount)};
}

std::u16string RateText(const CurrencyEntry& from, const CurrencyEntry& to, const ITexts& texts) {
    const auto rate = Convert(1, from.rate, to.rate);
    if (rate) return u"1 " + from.code + u" = " + FormatAmount(*rate) + u" " + to.code;
    return (RateValue(from.rate) ? to.code : from.code) + u": " + texts.Text(kTextRateUnknown);
}

}  // namespace rlx
