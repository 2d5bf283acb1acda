#include "feedserver/rates_table.h"

#include <algorithm>
#include <cmath>
#include <utility>

#include "base/number.h"
#include "base/text.h"

namespace rlx {

std::string RateText(double rate) {
    if (!std::isfinite(rate) || rate <= 0) return "0";
    const int exponent = static_cast<int>(std::floor(std::log10(rate)));
    std::string text = Narrow(FormatFixed(rate, std::clamp(7 - exponent, 0, 60)));
    if (text.find('.') == std::string::npos) return text;
    text.erase(text.find_last_not_of('0') + 1);
    if (text.back() == '.') text.pop_back();
    return text;
}

RatesTable RatesOfList(const CurrencyList& list, const Date& date, std::string source) {
    RatesTable table{date, std::move(source), {}};
    for (const CurrencyEntry& entry : list) {
        const double rate = ParseNumber(entry.rate);
        if (std::isfinite(rate) && rate > 0) table.perDollar[Narrow(entry.code)] = rate;
    }
    return table;
}

}  // namespace rlx
