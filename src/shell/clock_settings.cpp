#include "shell/clock_settings.h"

#include "shell/setting_names.h"

namespace rlx {

namespace {

constexpr std::array<DwordSetting, 6> kSettings = {{{names::kHomeClock, 0},
                                                    {names::kClocks[0], 684},
                                                    {names::kClocks[1], 756},
                                                    {names::kClocks[2], 565},
                                                    {names::kClocks[3], 988},
                                                    {names::kSyncZone, 0, true}}};

}  // namespace

ClockSettings LoadClockSettings(CRegistryStore& store) {
    const auto values = store.ReadDwordsOr(keys::kWorldClock, kSettings);
    return {values[0], {values[1], values[2], values[3], values[4]}, values[5]};
}

}  // namespace rlx
