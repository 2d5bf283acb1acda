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

}  // namespace rlx
