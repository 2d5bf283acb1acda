#pragma once

#include <map>
#include <optional>
#include <string>
#include <string_view>

#include "base/calendar.h"
#include "feeds/rates_list.h"

namespace rlx {

/// Exchange rates of one day from one source.
struct RatesTable {
    Date date;
    std::string source;                       ///< for people: a host or a file
    std::map<std::string, double> perDollar;  ///< units of a currency per US dollar, by three-letter code
};

/// Either a table or what is wrong with the bytes, in one line.
struct ParsedRates {
    std::optional<RatesTable> table;
    std::string fault;
};

/// The European Central Bank's reference rates: the first day of the file, turned from units per euro into units per
/// dollar. Takes any bytes.
ParsedRates ParseEcbRates(std::string_view xml);

/// A daily table {"date": "2026-09-29", "usd": {"eur": 0.88, ...}}. Takes any bytes; entries that are not three letters
/// and a number are passed over.
ParsedRates ParseDailyRates(std::string_view json);

/// The list that the application ships.
RatesTable RatesOfList(const CurrencyList& list, const Date& date, std::string source);

/// "2026-09-29"; nothing when it is no date.
std::optional<Date> ParseDay(std::string_view text);
std::string DayText(const Date& date);

/// Eight significant digits, never an exponent, no trailing zeros.
std::string RateText(double rate);

}  // namespace rlx
