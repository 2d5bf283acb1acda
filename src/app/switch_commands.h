#pragma once

#include <QObject>
#include <functional>

#include "shell/registry_store.h"
#include "uikit/template_menu.h"

namespace rlx {

/// The entries of the menu that turn a setting on and off and carry a tick: 12-hour times, the device's zone, cities of
/// the map, Fahrenheit. References must outlive it. User-interface thread.
class CSwitchCommands : public QObject {
    Q_OBJECT

public:
    /// Adds the commands; `changed` is called after each change.
    CSwitchCommands(CRegistryStore& settings, CCommandTable& commands, std::function<void()> changed);

    /// Ticks what is on, as the settings say now.
    void UpdateTicks();

private:
    CRegistryStore& m_settings;
    CCommandTable& m_commands;
    std::function<void()> m_changed;
};

}  // namespace rlx
