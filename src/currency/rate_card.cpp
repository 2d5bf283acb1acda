#include "currency/rate_card.h"

#include <algorithm>
#include <string_view>

#include "currency/currency_convert.h"

namespace rlx {

namespace {

/// The currencies that change hands most, and those of countries that many people travel to.
constexpr std::u16string_view kPopular[] = {u"USD", u"EUR", u"GBP", u"JPY", u"CHF", u"CAD", u"AUD", u"CNY", u"INR",
                                            u"MXN", u"BRL", u"TRY", u"THB", u"SEK", u"NOK", u"DKK", u"PLN", u"CZK",
                                            u"HUF", u"ZAR", u"KRW", u"SGD", u"HKD", u"NZD", u"AED", u"EGP", u"MAD"};

}  // namespace

std::vector<RateCardRow> RateCardOf(const CurrencyList& currencies, std::size_t base,
                                    const std::vector<std::size_t>& chosen) {
    if (base >= currencies.size()) return {};
    std::vector<std::size_t> order = chosen;
    for (const std::u16string_view code : kPopular) {
        const auto found = std::ranges::find(currencies, code, &CurrencyEntry::code);
        order.push_back(static_cast<std::size_t>(found - currencies.begin()));
    }
    std::vector<RateCardRow> rows;
    std::vector<std::size_t> taken = {base};
    for (const std::size_t position : order) {
        if (position >= currencies.size() || std::ranges::find(taken, position) != taken.end()) continue;
        taken.push_back(position);
        const CurrencyEntry& entry = currencies[position];
        const auto worth = Convert(1, currencies[base].rate, entry.rate);
        if (worth) rows.push_back({entry.code, entry.name, FormatAmount(*worth)});
    }
    return rows;
}

}  // namespace rlx
