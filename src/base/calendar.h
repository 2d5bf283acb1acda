#pragma once

#include <compare>
#include <cstdint>

/// Dates of the Gregorian calendar, proleptic, without any time zone. Pure functions, any thread.
namespace rlx {

struct Date {
    int year = 1970;
    int month = 1;  ///< 1 to 12
    int day = 1;    ///< 1 to 31

    friend bool operator==(const Date&, const Date&) = default;
    friend auto operator<=>(const Date&, const Date&) = default;
};

/// A reading of a clock on the wall: no zone, no daylight saving.
struct DateTime {
    Date date;
    int hour = 0;         ///< 0 to 23
    int minute = 0;       ///< 0 to 59
    int second = 0;       ///< 0 to 59
    int millisecond = 0;  ///< 0 to 999

    friend bool operator==(const DateTime&, const DateTime&) = default;
    friend auto operator<=>(const DateTime&, const DateTime&) = default;
};

bool IsLeapYear(int year);

/// 28 to 31; `month` from 1 to 12.
int DaysInMonth(int year, int month);

/// True when month, day, hour, minute, second and millisecond are in range.
bool IsValid(const Date& date);
bool IsValid(const DateTime& time);

/// Days since 1 January 1970.
std::int64_t DayNumber(const Date& date);
Date DateOfDayNumber(std::int64_t day);

Date AddDays(const Date& date, std::int64_t days);

/// 0 is Sunday.
int Weekday(const Date& date);

/// 1 is 1 January.
int DayOfYear(const Date& date);

/// Seconds since 1 January 1970 00:00 on the same clock; the millisecond is dropped.
std::int64_t SecondNumber(const DateTime& time);
DateTime DateTimeOfSecondNumber(std::int64_t second);

/// The same clock `seconds` later (earlier when negative); the millisecond is kept.
DateTime AddSeconds(const DateTime& time, std::int64_t seconds);

}  // namespace rlx
