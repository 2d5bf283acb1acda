#include "places/home_distance.h"

#include <cstdlib>

#include "base/number.h"
#include "base/text.h"
#include "places/text_ids.h"
#include "shell/fill_text.h"

namespace rlx {

namespace {

constexpr std::int64_t kMinutesPerDay = 1440;

std::int64_t DayOf(const ClockReading& reading) {
    return DayNumber({reading.year, reading.month, reading.day});
}

std::u16string HoursAndMinutes(std::int64_t minutes) {
    const std::int64_t absolute = std::abs(minutes);
    return FormatInteger(absolute / 60) + u":" + FormatTwoDigits(static_cast<int>(absolute % 60));
}

}  // namespace

std::int64_t MinutesAhead(const ClockReading& home, const ClockReading& city) {
    const std::int64_t days = DayOf(city) - DayOf(home);
    return days * kMinutesPerDay + (city.hour - home.hour) * 60 + (city.minute - home.minute);
}

std::u16string ShortDistance(std::int64_t minutesAhead) {
    if (minutesAhead == 0) return {};
    return (minutesAhead > 0 ? u"+" : u"-") + HoursAndMinutes(minutesAhead);
}

std::u16string DistanceText(std::int64_t minutesAhead, const ITexts& texts) {
    if (minutesAhead == 0) return texts.Text(kTextSameAsHome);
    const TextId id = minutesAhead > 0 ? kTextAheadOfHome : kTextBehindHome;
    return FillText(texts.Text(id), {HoursAndMinutes(minutesAhead)});
}

std::u16string DayWord(const ClockReading& home, const ClockReading& city, const ITexts& texts) {
    const std::int64_t days = DayOf(city) - DayOf(home);
    if (days == 0) return {};
    if (days == 1) return texts.Text(kTextTomorrow);
    return days == -1 ? texts.Text(kTextYesterday) : Trim(city.dateText);
}

std::u16string HomeNote(const ClockReading& home, const ClockReading& city, const ITexts& texts) {
    std::u16string note = DayWord(home, city, texts);
    const std::u16string distance = ShortDistance(MinutesAhead(home, city));
    if (!note.empty() && !distance.empty()) note += u", ";
    return note + distance;
}

}  // namespace rlx
