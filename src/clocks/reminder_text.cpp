#include "clocks/reminder_text.h"

#include "base/number.h"
#include "clocks/text_ids.h"
#include "places/text_ids.h"
#include "shell/fill_text.h"

namespace rlx {

std::u16string TimeAndDateText(const DateTime& time, ClockForm form, const ITexts& texts) {
    const ClockTextPieces clock = ClockText(time.hour, time.minute, std::nullopt, form, texts);
    return clock.time + clock.half + u", " + texts.Text(kTextSunday + Weekday(time.date)) + u" " +
           FormatTwoDigits(time.date.day) + u"/" + FormatTwoDigits(time.date.month) + u"/" +
           FormatInteger(time.date.year);
}

std::u16string ReminderWhenText(const Reminder& reminder, CReminderClock& clock, ClockForm form, const ITexts& texts) {
    return clock.CityOf(reminder.place).name + u", " + TimeAndDateText(reminder.time, form, texts);
}

std::u16string ReminderText(const Reminder& reminder, CReminderClock& clock, ClockForm form, const ITexts& texts) {
    const std::u16string when = ReminderWhenText(reminder, clock, form, texts);
    return reminder.text.empty() ? when : reminder.text + u"\n" + when;
}

std::u16string UntilText(std::int64_t seconds, const ITexts& texts) {
    const std::int64_t minutes = seconds / 60;
    if (minutes == 0) return texts.Text(kTextInAMoment);
    if (minutes < 60) return FillText(texts.Text(kTextInMinutes), {FormatInteger(minutes)});
    const std::int64_t hours = minutes / 60;
    if (hours < 24) {
        return FillText(texts.Text(kTextInHours), {FormatInteger(hours), FormatInteger(minutes % 60)});
    }
    return FillText(texts.Text(kTextInDays), {FormatInteger(hours / 24), FormatInteger(hours % 24)});
}

std::u16string ReminderStateText(const StoredReminder& stored, CReminderClock& clock, const ITexts& texts) {
    const DateTime due = clock.MomentOf(stored.reminder).utc;
    const DateTime now = clock.UtcNow();
    switch (PhaseOf(stored.mark, due, now)) {
        case ReminderPhase::kWaiting:
            return UntilText(SecondNumber(due) - SecondNumber(now), texts);
        case ReminderPhase::kDue:
            return texts.Text(kTextReminderDue);
        default:
            return texts.Text(kTextReminderTold);
    }
}

}  // namespace rlx
