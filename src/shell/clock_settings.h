#pragma once

#include <array>
#include <cstdint>

#include "shell/registry_store.h"

namespace rlx {

/// The choices of the world clocks.
struct ClockSettings {
    std::uint32_t home = 0;                 ///< `CityIndex`
    std::array<std::uint32_t, 4> clocks{};  ///< `CityIndex` of the four others
    std::uint32_t syncZone = 0;             ///< not 0: the device clock runs on the device's time-zone setting

    friend bool operator==(const ClockSettings&, const ClockSettings&) = default;
};

/// The cities of the home clock and the four others where nothing else is stored.
inline constexpr std::array<std::uint32_t, 5> kDefaultClockCities = {0, 684, 756, 565, 988};

/// Reads them with their defaults. On a device without them all six values are there afterwards; a missing "syncltz"
/// is written in any case.
ClockSettings LoadClockSettings(CRegistryStore& store);

}  // namespace rlx
