#include "platform/posix/system_clock.h"

#include <time.h>

#include <algorithm>

namespace rlx {

namespace {

constexpr long kSecondsPerMinute = 60;

tm LocalTime(time_t instant) {
    tm local{};
    localtime_r(&instant, &local);
    return local;
}

}  // namespace

DateTime CSystemClock::Now() const {
    timespec instant{};
    clock_gettime(CLOCK_REALTIME, &instant);
    tzset();
    const tm local = LocalTime(instant.tv_sec);
    const Date date{local.tm_year + 1900, local.tm_mon + 1, local.tm_mday};
    // A zone that counts leap seconds has a second 60.
    return {date, local.tm_hour, local.tm_min, std::min(local.tm_sec, 59), static_cast<int>(instant.tv_nsec / 1000000)};
}

int CSystemClock::StandardBias() const {
    tzset();
    const int year = LocalTime(time(nullptr)).tm_year + 1900;
    long smallest = 0;
    for (int month = 1; month <= 12; ++month) {
        const long offset = LocalTime(SecondNumber({.date = {year, month, 1}, .hour = 12})).tm_gmtoff;
        smallest = month == 1 ? offset : std::min(smallest, offset);
    }
    return static_cast<int>(-smallest / kSecondsPerMinute);
}

}  // namespace rlx
