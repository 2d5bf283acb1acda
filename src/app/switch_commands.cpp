#include "app/switch_commands.h"

#include <cstdint>
#include <string_view>

#include "shell/command_ids.h"
#include "shell/setting_names.h"

namespace rlx {

namespace {

struct Switch {
    int command;
    std::u16string_view key;
    std::u16string_view name;
    std::uint32_t fallback;  ///< while the setting is missing
    bool onForAny;           ///< on for any number but 0, else for 1 alone

    bool IsOn(std::uint32_t value) const { return onForAny ? value != 0 : value == 1; }
};

constexpr Switch kSwitches[] = {
    {kCommandTwelveHour, keys::kRoamlytix, names::kTwelveHour, 0, false},
    {kCommandDeviceTimeZone, keys::kWorldClock, names::kSyncZone, 0, true},
    {kCommandShowCities, keys::kMap, names::kShowCities, 1, false},
    {kCommandFahrenheit, keys::kRoamlytix, names::kFahrenheit, 0, false},
};

}  // namespace

CSwitchCommands::CSwitchCommands(CRegistryStore& settings, CCommandTable& commands, std::function<void()> changed)
    : m_settings(settings), m_commands(commands), m_changed(std::move(changed)) {
    for (const Switch& each : kSwitches) {
        QAction* action = m_commands.Add(each.command, this, [this, &each] {
            const bool any = m_settings.ReadDwordOr(each.key, each.name, each.fallback) != 0;
            m_settings.WriteDword(RootOf(each.key), each.key, each.name, any ? 0 : 1);
            m_changed();
        });
        action->setCheckable(true);
    }
}

void CSwitchCommands::UpdateTicks() {
    for (const Switch& each : kSwitches) {
        const std::uint32_t value = m_settings.ReadDwordOr(each.key, each.name, each.fallback);
        m_commands.Find(each.command)->setChecked(each.IsOn(value));
    }
}

}  // namespace rlx
