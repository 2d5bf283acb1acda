#include "feedserver/rates_check.h"

#include "base/iso_day.h"
#include "base/text.h"

namespace rlx {

namespace {

constexpr std::size_t kLeastEntries = 15;
constexpr double kLeastRate = 1e-10;
constexpr double kGreatestRate = 1e12;
constexpr std::int64_t kOldestDays = 30;
constexpr double kJump = 0.5;

std::string FaultOf(const RatesTable& fresh, const RatesTable* last, const Date& today) {
    if (fresh.perDollar.size() < kLeastEntries)
        return "only " + std::to_string(fresh.perDollar.size()) + " rates, " + std::to_string(kLeastEntries) +
               " are expected";
    // A day ahead is a place where it is tomorrow already.
    const std::int64_t age = DayNumber(today) - DayNumber(fresh.date);
    if (age < -1) return "rates of " + Narrow(IsoDay(fresh.date)) + ", which is in the future";
    if (age > kOldestDays) return "rates of " + Narrow(IsoDay(fresh.date)) + ", which is too long ago";
    if (last != nullptr && fresh.date < last->date)
        return "rates of " + Narrow(IsoDay(fresh.date)) + ", older than those of " + Narrow(IsoDay(last->date));
    for (const auto& [code, rate] : fresh.perDollar) {
        if (!(rate >= kLeastRate && rate <= kGreatestRate)) return "the rate of " + code + " is out of range";
    }
    return {};
}

}  // namespace

RatesCheck CheckRates(const RatesTable& fresh, const RatesTable* last, const Date& today) {
    RatesCheck check{FaultOf(fresh, last, today), {}};
    if (last == nullptr || !check.fault.empty()) return check;
    for (const auto& [code, rate] : fresh.perDollar) {
        const auto before = last->perDollar.find(code);
        if (before == last->perDollar.end()) continue;
        const double change = rate / before->second;
        if (change > 1 + kJump || change < 1 - kJump)
            check.marks.push_back(code + " jumps from " + RateText(before->second) + " to " + RateText(rate));
    }
    return check;
}

}  // namespace rlx
