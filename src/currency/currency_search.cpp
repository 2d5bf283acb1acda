#include "currency/currency_search.h"

#include <algorithm>
#include <map>
#include <string>

#include "base/text.h"
#include "currency/country_currencies.h"

namespace rlx {

namespace {

enum Rank { kCode, kCodeBegins, kNameWord, kCountryWord, kInName, kNoFit };

bool HasWordBeginning(std::u16string_view text, std::u16string_view typed) {
    for (std::size_t at = text.find(typed); at != std::u16string_view::npos; at = text.find(typed, at + 1)) {
        if (at == 0 || text[at - 1] == u' ' || text[at - 1] == u'-' || text[at - 1] == u'(') return true;
    }
    return false;
}

/// Folded country names by currency code, each name behind a blank.
const std::map<std::u16string_view, std::u16string>& CountriesByCode() {
    static const auto countries = [] {
        std::map<std::u16string_view, std::u16string> byCode;
        for (const CountryCurrency& row : CountryCurrencies())
            byCode[row.code] += u" " + FoldForSearch(row.country);
        return byCode;
    }();
    return countries;
}

Rank RankOf(const CurrencyEntry& currency, std::u16string_view typed) {
    const std::u16string code = FoldForSearch(currency.code);
    const std::u16string name = FoldForSearch(currency.name);
    if (code == typed) return kCode;
    if (code.starts_with(typed)) return kCodeBegins;
    if (HasWordBeginning(name, typed)) return kNameWord;
    const auto countries = CountriesByCode().find(currency.code);
    if (countries != CountriesByCode().end() && HasWordBeginning(countries->second, typed)) return kCountryWord;
    return name.find(typed) != std::u16string::npos ? kInName : kNoFit;
}

}  // namespace

std::vector<std::size_t> SearchCurrencies(std::u16string_view typed, const CurrencyList& currencies) {
    const std::u16string folded = FoldForSearch(Trim(typed));
    std::vector<std::pair<Rank, std::size_t>> ranked;
    for (std::size_t i = 0; i < currencies.size(); ++i) {
        const Rank rank = folded.empty() ? kCode : RankOf(currencies[i], folded);
        if (rank != kNoFit) ranked.emplace_back(rank, i);
    }
    std::stable_sort(ranked.begin(), ranked.end(), [](const auto& a, const auto& b) { return a.first < b.first; });
    std::vector<std::size_t> positions;
    positions.reserve(ranked.size());
    for (const auto& [rank, position] : ranked)
        positions.push_back(position);
    return positions;
}

}  // namespace rlx
