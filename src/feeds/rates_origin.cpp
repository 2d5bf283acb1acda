#include "feeds/rates_origin.h"

#include "base/iso_day.h"
#include "shell/registry_store.h"
#include "shell/setting_names.h"

namespace rlx {

RatesOrigin OriginOfRates(IRegistry& registry, const std::optional<Date>& shippedDate) {
    CRegistryStore settings(registry);
    const auto updated =
        ParseIsoDay(settings.ReadString(RegistryRoot::kLocalMachine, keys::kCurrencies, names::kRatesDate));
    if (!updated) return {shippedDate, {}};
    return {updated, settings.ReadString(RegistryRoot::kLocalMachine, keys::kCurrencies, names::kRatesSource)};
}

bool AreRatesStale(const std::optional<Date>& rates, const Date& today) {
    if (!rates) return true;
    const std::int64_t age = DayNumber(today) - DayNumber(*rates);
    return age > kRatesStaleAfterDays || age < -1;
}

}  // namespace rlx
