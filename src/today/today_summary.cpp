#include "today/today_summary.h"

#include "base/text.h"
#include "currency/currency_convert.h"

namespace rlx {

std::vector<ClockReading> TodayClocks(CCityTimes& times, const DateTime& now, const TodayOptions& options) {
    const auto clocks = times.AllClocks(now);
    return {clocks.begin(), clocks.begin() + options.cities};
}

std::vector<TodayRate> TodayRates(CConverterPairs& pairs, const CurrencyList& currencies, const TodayOptions& options) {
    if (!options.rates || currencies.empty()) return {};
    std::vector<TodayRate> rates;
    for (std::size_t row = 0; row < kConverterPairs; ++row) {
        const CurrencyPair pair = pairs.Read(row, currencies);
        const CurrencyEntry& from = currencies[pair.from];
        const CurrencyEntry& to = currencies[pair.to];
        const auto worth = Convert(1, from.rate, to.rate);
        rates.push_back({from.code, to.code, worth ? FormatAmount(*worth) : std::u16string()});
    }
    return rates;
}

std::u16string TodayText(const ClockReading& clock, const ClockReading& home) {
    std::u16string text = clock.name;
    text += u" " + clock.timeText;
    const bool sameDay = clock.day == home.day && clock.month == home.month && clock.year == home.year;
    if (!sameDay) text += u" (" + Trim(clock.dateText) + u")";
    return text;
}

std::u16string TodayText(const TodayRate& rate) {
    std::u16string text = u"1 " + rate.from;
    text += u" = " + (rate.text.empty() ? std::u16string(u"?") : rate.text);
    text += u" " + rate.to;
    return text;
}

}  // namespace rlx
