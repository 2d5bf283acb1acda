#pragma once

#include <cstdint>
#include <string>

#include "clocks/reminder.h"
#include "clocks/reminder_clock.h"
#include "clocks/reminder_store.h"
#include "shell/clock_text.h"
#include "shell/texts.h"

/// Reminders for reading. Any thread that may use the clock given.
namespace rlx {

/// "09:00, Tue 24/11/2026".
std::u16string TimeAndDateText(const DateTime& time, ClockForm form, const ITexts& texts);

/// "Tokyo, 09:00, Tue 24/11/2026".
std::u16string ReminderWhenText(const Reminder& reminder, CReminderClock& clock, ClockForm form, const ITexts& texts);

/// The reminder's text and, below it, when and where: what a notification says.
std::u16string ReminderText(const Reminder& reminder, CReminderClock& clock, ClockForm form, const ITexts& texts);

/// "in 3 h 20 min"; full minutes are counted, so that a reminder is never nearer than it says. `seconds` from 0.
std::u16string UntilText(std::int64_t seconds, const ITexts& texts);

/// How a reminder stands: how long until it comes, or what became of it.
std::u16string ReminderStateText(const StoredReminder& stored, CReminderClock& clock, const ITexts& texts);

}  // namespace rlx
