#pragma once

#include "shell/text_id.h"

/// World Clocks and reminders.
namespace rlx {

inline constexpr TextId kTextHome = 40202;
inline constexpr TextId kTextClockNumber = 40203;
inline constexpr TextId kTextDay = 40204;
inline constexpr TextId kTextNight = 40205;
inline constexpr TextId kTextClocksTip = 40206;
inline constexpr TextId kTextTwelveHour = 40207;
inline constexpr TextId kTextDeviceTimeZone = 40208;

inline constexpr TextId kTextReminder = 41600;
inline constexpr TextId kTextReminder1 = 41601;
inline constexpr TextId kTextReminder2 = 41602;
inline constexpr TextId kTextReminder3 = 41603;
inline constexpr TextId kTextReminder4 = 41604;
inline constexpr TextId kTextMissedReminders = 41605;
inline constexpr TextId kTextReminderNone = 41606;
inline constexpr TextId kTextInDays = 41607;
inline constexpr TextId kTextInHours = 41608;
inline constexpr TextId kTextInMinutes = 41609;
inline constexpr TextId kTextInAMoment = 41610;
inline constexpr TextId kTextReminderTold = 41611;
inline constexpr TextId kTextReminderDue = 41612;
inline constexpr TextId kTextReminderPast = 41613;
inline constexpr TextId kTextReminderSkipped = 41614;
inline constexpr TextId kTextReminderTwice = 41615;
inline constexpr TextId kTextReminderHere = 41616;
inline constexpr TextId kTextReminderCityGone = 41617;
inline constexpr TextId kTextReminderNotSaved = 41618;
inline constexpr TextId kTextClearReminder = 41619;
inline constexpr TextId kTextOtherClock = 41620;
inline constexpr TextId kTextRemindersWait = 41621;

}  // namespace rlx
