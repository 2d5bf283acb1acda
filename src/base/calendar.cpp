#include "base/calendar.h"

namespace rlx {

namespace {

constexpr std::int64_t kSecondsADay = 86400;

bool InRange(int value, int low, int high) {
    return value >= low && value <= high;
}

std::int64_t FloorDivide(std::int64_t value, std::int64_t divisor) {
    const std::int64_t quotient = value / divisor;
    return value % divisor < 0 ? quotient - 1 : quotient;
}

}  // namespace

bool IsLeapYear(int year) {
    return (year % 4 == 0 && year % 100 != 0) || year % 400 == 0;
}

int DaysInMonth(int year, int month) {
    if (month == 2) return IsLeapYear(year) ? 29 : 28;
    return month == 4 || month == 6 || month == 9 || month == 11 ? 30 : 31;
}

bool IsValid(const Date& date) {
    return InRange(date.month, 1, 12) && InRange(date.day, 1, DaysInMonth(date.year, date.month));
}

bool IsValid(const DateTime& time) {
    return IsValid(time.date) && InRange(time.hour, 0, 23) && InRange(time.minute, 0, 59) &&
           InRange(time.second, 0, 59) && InRange(time.millisecond, 0, 999);
}

// Both directions count in eras of 400 years whose years begin in March, so that the leap day comes last.
std::int64_t DayNumber(const Date& date) {
    const std::int64_t year = date.month <= 2 ? date.year - 1 : date.year;
    const std::int64_t era = FloorDivide(year, 400);
    const std::int64_t yearOfEra = year - era * 400;
    const std::int64_t monthFromMarch = (date.month + 9) % 12;
    const std::int64_t dayOfYear = (153 * monthFromMarch + 2) / 5 + date.day - 1;
    const std::int64_t dayOfEra = yearOfEra * 365 + yearOfEra / 4 - yearOfEra / 100 + dayOfYear;
    return era * 146097 + dayOfEra - 719468;
}

Date DateOfDayNumber(std::int64_t day) {
    const std::int64_t shifted = day + 719468;
    const std::int64_t era = FloorDivide(shifted, 146097);
    const std::int64_t dayOfEra = shifted - era * 146097;
    const std::int64_t yearOfEra = (dayOfEra - dayOfEra / 1460 + dayOfEra / 36524 - dayOfEra / 146096) / 365;
    const std::int64_t dayOfYear = dayOfEra - (365 * yearOfEra + yearOfEra / 4 - yearOfEra / 100);
    const std::int64_t monthFromMarch = (5 * dayOfYear + 2) / 153;
    const int month = static_cast<int>(monthFromMarch < 10 ? monthFromMarch + 3 : monthFromMarch - 9);
    const int dayOfMonth = static_cast<int>(dayOfYear - (153 * monthFromMarch + 2) / 5 + 1);
    return {static_cast<int>(yearOfEra + era * 400) + (month <= 2 ? 1 : 0), month, dayOfMonth};
}

Date AddDays(const Date& date, std::int64_t days) {
    return DateOfDayNumber(DayNumber(date) + days);
}

int Weekday(const Date& date) {
    const std::int64_t day = DayNumber(date) + 4;  // 1 January 1970 was a Thursday
    return static_cast<int>(day - FloorDivide(day, 7) * 7);
}

int DayOfYear(const Date& date) {
    return static_cast<int>(DayNumber(date) - DayNumber({date.year, 1, 1})) + 1;
}

std::int64_t SecondNumber(const DateTime& time) {
    const int secondOfDay = time.hour * 3600 + time.minute * 60 + time.second;
    return DayNumber(time.date) * kSecondsADay + secondOfDay;
}

DateTime DateTimeOfSecondNumber(std::int64_t second) {
    const std::int64_t day = FloorDivide(second, kSecondsADay);
    const int rest = static_cast<int>(second - day * kSecondsADay);
    return {DateOfDayNumber(day), rest / 3600, rest / 60 % 60, rest % 60, 0};
}

DateTime AddSeconds(const DateTime& time, std::int64_t seconds) {
    DateTime moved = DateTimeOfSecondNumber(SecondNumber(time) + seconds);
    moved.millisecond = time.millisecond;
    return moved;
}

}  // namespace rlx
