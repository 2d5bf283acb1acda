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

DateTime CSystemClock::UtcNow() const {
    return DateTimeOfSecondNumber(time(nullptr));
}

/// A zone has one offset before a change and another after it, so the offsets of the days around the time are all that
/// it can have.
DateTime CSystemClock::UtcOf(const DateTime& local) const {
    constexpr std::int64_t kDay = 86400;
    tzset();
    const std::int64_t wanted = SecondNumber(local);
    const std::int64_t before = wanted - LocalTime(wanted - kDay).tm_gmtoff;
    const std::int64_t after = wanted - LocalTime(wanted + kDay).tm_gmtoff;
    const auto shows = [wanted](std::int64_t instant) { return instant + LocalTime(instant).tm_gmtoff == wanted; };
    const auto [first, second] = std::minmax(before, after);
    const std::int64_t instant = shows(first) ? first : shows(second) ? second : before;
    return DateTimeOfSecondNumber(instant);
}

}  // namespace rlx
