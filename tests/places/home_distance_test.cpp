#include "places/home_distance.h"

#include <gtest/gtest.h>

#include "base/text.h"
#include "shell/resources.h"

namespace rlx {
namespace {

ClockReading At(int day, int hour, int minute) {
    ClockReading reading;
    reading.year = 2026;
    reading.month = 11;
    reading.day = day;
    reading.hour = hour;
    reading.minute = minute;
    reading.dateText = u"24/11 Tue ";
    return reading;
}

TEST(HomeDistance, TellsDayAndMinutes) {
    const CResources texts;
    const ClockReading home = At(22, 21, 10);
    const struct {
        ClockReading city;
        const char* note;
        const char* words;
    } rows[] = {
        {At(22, 21, 10), "", "same time as home"},
        {At(22, 15, 10), "-6:00", "6:00 behind home"},
        {At(23, 1, 40), "tomorrow, +4:30", "4:30 ahead of home"},
        {At(21, 23, 55), "yesterday, -21:15", "21:15 behind home"},
        {At(24, 0, 0), "24/11 Tue, +26:50", "26:50 ahead of home"},
    };
    for (const auto& row : rows) {
        EXPECT_EQ(ToUtf8(HomeNote(home, row.city, texts)), row.note);
        EXPECT_EQ(ToUtf8(DistanceText(MinutesAhead(home, row.city), texts)), row.words);
    }
}

}  // namespace
}  // namespace rlx
