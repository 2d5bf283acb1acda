#pragma once

#include <string>
#include <vector>

#include "currency/converter_pairs.h"
#include "feeds/rates_list.h"
#include "places/city_times.h"
#include "today/today_options.h"

namespace rlx {

/// What one unit of the first currency of a converter pair is worth in the second.
struct TodayRate {
    std::u16string from;  ///< code
    std::u16string to;    ///< code
    std::u16string text;  ///< the amount as shown; empty when a rate is unknown
};

/// The home clock and as many world clocks as the options ask for, all at one instant.
std::vector<ClockReading> TodayClocks(CCityTimes& times, const DateTime& now, const TodayOptions& options);

/// The three converter pairs. Empty when the options leave them out or there are no currencies.
std::vector<TodayRate> TodayRates(CConverterPairs& pairs, const CurrencyList& currencies, const TodayOptions& options);

/// A city for a status bar: its name and time, and its short date when that is not the date at home.
std::u16string TodayText(const ClockReading& clock, const ClockReading& home);

/// A rate for a status bar: "1 USD = 0.86 EUR", with a question mark for an unknown one.
std::u16string TodayText(const TodayRate& rate);

}  // namespace rlx
