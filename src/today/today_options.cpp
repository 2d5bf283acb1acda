#include "today/today_options.h"

#include <algorithm>

#include "shell/setting_names.h"

namespace rlx {

TodayOptions ReadTodayOptions(CRegistryStore& settings) {
    TodayOptions options;
    const RegistryRoot root = RootOf(keys::kRoamlytix);
    const std::uint32_t cities = settings.ReadDword(root, keys::kRoamlytix, names::kTodayCities);
    if (settings.Status() == ReadStatus::kRead) {
        options.cities = static_cast<int>(std::clamp<std::uint32_t>(cities, 1, kMostTodayCities));
    }
    const std::uint32_t rates = settings.ReadDword(root, keys::kRoamlytix, names::kTodayRates);
    if (settings.Status() == ReadStatus::kRead) options.rates = rates != 0;
    return options;
}

bool WriteTodayOptions(CRegistryStore& settings, const TodayOptions& options) {
    const RegistryRoot root = RootOf(keys::kRoamlytix);
    const bool cities =
        settings.WriteDword(root, keys::kRoamlytix, names::kTodayCities, static_cast<std::uint32_t>(options.cities));
    return settings.WriteDword(root, keys::kRoamlytix, names::kTodayRates, options.rates ? 1 : 0) && cities;
}

}  // namespace rlx
