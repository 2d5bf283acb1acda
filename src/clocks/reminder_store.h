#pragma once

#include <array>
#include <optional>

#include "clocks/reminder.h"
#include "platform/registry.h"

namespace rlx {

/// A reminder as it lies in the settings.
struct StoredReminder {
    std::size_t number = 0;  ///< 0 to `kReminders` - 1
    Reminder reminder;
    ReminderMark mark;
    std::array<std::optional<RegistryValue>, 5> values;  ///< what it was read from
};

/// The five reminders in "Roamlytix\alarms". Whatever is stored there can be read: values that say no time read as no
/// reminder. Every change is one step, so another program never sees half of it. Does not own the registry. Used from
/// one thread.
class CReminderStore {
public:
    explicit CReminderStore(IRegistry& registry) : m_registry(registry) {}

    std::optional<StoredReminder> Load(std::size_t number) const;

    /// Puts a reminder that waits in the place of whatever was there. False when the device refuses.
    bool Save(std::size_t number, const Reminder& reminder);

    bool Clear(std::size_t number);

    /// Marks a reminder, provided that nothing about it has changed since it was read; of several programs that try at
    /// once one succeeds. `stored` is then as stored now.
    bool Mark(StoredReminder& stored, const ReminderMark& mark);

private:
    IRegistry& m_registry;
};

}  // namespace rlx
