#include "shell/clock_settings.h"

#include "shell/setting_names.h"

namespace rlx {

namespace {

constexpr std::array<DwordSetting, 6> kSettings = {{{names::kHomeClock, kDefaultClockCities[0]},
                                                    {names::kClocks[0], kDefaultClockCities[1]},
                                                    {names::kClocks[1], kDefaultClockCities[2]},
                                                    {names::kClocks[2], kDefaultClockCities[3]},
                                                    {names::kClocks[3], kDefaultClockCities[4]},
                                                    {names::kSyncZone, 0, true}}};

}  // namespace

ClockSettings LoadClockSettings(CRegistryStore& store) {
    const auto values = store.ReadDwordsOr(keys::kWorldClock, kSettings);
    return {values[0], {values[1], values[2], values[3], values[4]}, values[5]};
}

}  // namespace rlx
