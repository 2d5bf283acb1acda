#pragma once

#include <cstdint>

#include "shell/registry_store.h"

namespace rlx {

/// The most cities that the summary can list: the home city and the four world clocks.
inline constexpr int kMostTodayCities = 5;

/// What the summary of the home screen shows.
struct TodayOptions {
    int cities = 3;     ///< 1 to `kMostTodayCities`
    bool rates = true;  ///< also the currency pairs

    friend bool operator==(const TodayOptions&, const TodayOptions&) = default;
};

/// The options as stored in "todaynbcs" and "todayscur" of "Roamlytix"; each has its default when it cannot be read. A
/// count of 0 counts as 1, one beyond the list as its last entry. Writes nothing.
TodayOptions ReadTodayOptions(CRegistryStore& settings);

/// False when the device refuses.
bool WriteTodayOptions(CRegistryStore& settings, const TodayOptions& options);

}  // namespace rlx
