#pragma once

#include <string>
#include <vector>

#include "feedserver/rates_table.h"

namespace rlx {

/// What a check of fresh rates found.
struct RatesCheck {
    std::string fault;               ///< why the table cannot be believed; empty when it can
    std::vector<std::string> marks;  ///< for the log: values that moved by more than half
};

/// Believes a table that has enough entries, all within range, and a date that is neither in the future nor long past
/// nor before the last one. `last` may be null.
RatesCheck CheckRates(const RatesTable& fresh, const RatesTable* last, const Date& today);

}  // namespace rlx
