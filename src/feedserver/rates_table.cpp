#include "feedserver/rates_table.h"

#include <algorithm>
#include <cmath>
#include <utility>

#include "base/number.h"
#include "base/text.h"

namespace rlx {

std::optional<Date> ParseDay(std::string_view text) {
    const std::u16string wide = Widen(text);
    if (wide.size() != 10 || wide[4] != u'-' || wide[7] != u'-') return std::nullopt;
    const auto year = ParseWholeInteger(wide.substr(0, 4), 1, 9999);
    const auto month = ParseWholeInteger(wide.substr(5, 2), 1, 12);
    const auto day = ParseWholeInteger(wide.substr(8, 2), 1, 31);
    if (!year || !month || !day) return std::nullopt;
    const Date date{static_cast<int>(*year), static_cast<int>(*month), static_cast<int>(*day)};
    return IsValid(date) ? std::optional(date) : std::nullopt;
}

std::string DayText(const Date& date) {
    const std::u16string text =
        FormatInteger(date.year) + u"-" + FormatTwoDigits(date.month) + u"-" + FormatTwoDigits(date.day);
    return Narrow(text);
}

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
