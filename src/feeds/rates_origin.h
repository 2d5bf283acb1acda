#pragma once

#include <optional>
#include <string>

#include "base/calendar.h"
#include "platform/registry.h"

namespace rlx {

/// Where the rates of the currency database come from.
struct RatesOrigin {
    std::optional<Date> date;  ///< the day of the rates, or of the update that brought them
    std::u16string source;     ///< the host that sent them; empty for the rates that the program came with
};

/// The last update, else the list that the program came with. `shippedDate`: what `ShippedRatesDate` says.
RatesOrigin OriginOfRates(IRegistry& registry, const std::optional<Date>& shippedDate);

/// Rates older than this many days are out of date.
inline constexpr int kRatesStaleAfterDays = 7;

/// Also true for a day that lies more than one day ahead of the device's, and for an unknown one.
bool AreRatesStale(const std::optional<Date>& rates, const Date& today);

}  // namespace rlx
