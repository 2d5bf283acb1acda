#include "places/city_time.h"

#include "base/number.h"
#include "places/text_ids.h"

namespace rlx {

namespace {

/// 64 bits throughout: no pair of offsets can overflow them.
struct Shift {
    std::int64_t hours = 0;
    std::int64_t minutes = 0;  ///< -59 to 59
};

Shift ShiftOf(GmtOffset gmt, const ClockOffset& reference) {
    const ClockOffset city = SplitGmt(gmt);
    const std::int64_t minutes = std::int64_t{city.minutes} - reference.minutes;
    return {minutes / 60 - reference.hours + city.hours, minutes % 60};
}

struct Minute {
    std::int64_t value = 0;
    int carry = 0;  ///< hours
};

Minute MinuteOf(int minute, std::int64_t shift) {
    const std::int64_t shifted = minute + shift;
    if (shift != 0 && shifted > 59) return {shifted - 60, 1};
    if (shift != 0 && shifted < 0) return {shifted + 60, -1};
    return {shifted, 0};
}

int DayShift(int deviceHour, std::int64_t hours) {
    if (hours < 0 && deviceHour < -hours) return -1;
    if (hours > 0 && deviceHour + hours > 23) return 1;
    return 0;
}

std::u16string TwoDigits(std::int64_t value) {
    return (value < 10 ? u"0" : u"") + FormatInteger(value);
}

std::u16string FourDigits(int year) {
    std::u16string digits = FormatInteger(year);
    if (digits.size() < 4) digits.insert(0, 4 - digits.size(), u'0');
    return digits;
}

}  // namespace

ClockOffset ReferenceOfBias(int bias) {
    return {bias / -60, bias % -60};
}

CityTime CityTimeOf(GmtOffset gmt, const ClockOffset& reference, const DateTime& now) {
    const Shift shift = ShiftOf(gmt, reference);
    const Minute minute = MinuteOf(now.minute, shift.minutes);
    std::int64_t hour = now.hour + shift.hours + minute.carry;
    if (hour < 0) hour += 24;
    if (hour >= 24) hour -= 24;
    return {hour, static_cast<int>(minute.value), now.second};
}

Date CityDateOf(GmtOffset gmt, const ClockOffset& reference, const DateTime& now) {
    const Shift shift = ShiftOf(gmt, reference);
    const Minute minute = MinuteOf(now.minute, shift.minutes);
    return AddDays(now.date, DayShift(now.hour, shift.hours + minute.carry));
}

std::u16string CityTimeText(const CityTime& time) {
    return TwoDigits(time.hour) + u":" + TwoDigits(time.minute) + u":" + TwoDigits(time.second);
}

std::u16string CityDateText(const Date& date, bool longForm, const ITexts& texts) {
    std::u16string text = TwoDigits(date.day) + u"/" + TwoDigits(date.month);
    text += longForm ? u"/" + FourDigits(date.year) + u"    " : u" ";
    return text + texts.Text(kTextSunday + Weekday(date));
}

std::u16string CityLocalTime(GmtOffset gmt, const ClockOffset& reference, const DateTime& now) {
    return CityTimeText(CityTimeOf(gmt, reference, now));
}

CityDate CityLocalDate(GmtOffset gmt, const ClockOffset& reference, const DateTime& now, bool longForm,
                       const ITexts& texts) {
    const Date date = CityDateOf(gmt, reference, now);
    return {CityDateText(date, longForm, texts), date};
}

}  // namespace rlx
