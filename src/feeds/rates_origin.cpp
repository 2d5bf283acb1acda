#include "feeds/rates_origin.h"

#include "feeds/iso_day.h"
#include "feeds/rates_list.h"
#include "shell/registry_store.h"
#include "shell/setting_names.h"

namespace rlx {

namespace {

constexpr std::int64_t kFreshDays = 7;

}  // namespace

RatesOrigin OriginOfRates(IRegistry& registry, IFileSystem& files, const std::filesystem::path& applicationFolder) {
    CRegistryStore settings(registry);
    const std::u16string day = settings.ReadString(RegistryRoot::kLocalMachine, keys::kCurrencies, names::kRatesDate);
    const std::optional<Date> updated = ParseIsoDay(day);
    if (!updated) return {ShippedRatesDate(files, applicationFolder), {}};
    return {updated, settings.ReadString(RegistryRoot::kLocalMachine, keys::kCurrencies, names::kRatesSource)};
}

bool AreRatesOld(const RatesOrigin& origin, const Date& today) {
    return !origin.date || DayNumber(today) - DayNumber(*origin.date) > kFreshDays;
}

}  // namespace rlx
