#include "base/calendar.h"

namespace rlx {
namespace {

TEST(Calendar, CountsDaysOneByOne) {
    // Walks 900 years a day at a time with nothing but the month lengths, and compares.
    Date date{1600, 1, 1};
    int weekday = 6;  // a Saturday
    for (std::int64_t number = DayNumber(date); date.year < 2500; ++number) {
        ASSERT_EQ(DayNumber(date), number);
        ASSERT_EQ(DateOfDayNumber(number), date);
        ASSERT_EQ(Weekday(date), weekday);
        weekday = (weekday + 1) % 7;
        if (++date.day > DaysInMonth(date.year, date.month)) {
            date.day = 1;
            if (++date.month > 12) date = {date.year + 1, 1, 1};
        }
    }
    EXPECT_EQ(DayNumber({1970, 1, 1}), 0);
    EXPECT_FALSE(IsLeapYear(1900));
    EXPECT_TRUE(IsLeapYear(2000));
}

TEST(Calendar, RefusesWhatIsNoDate) {
    EXPECT_TRUE(IsValid(DateTime{{2024, 2, 29}, 23, 59, 59, 999}));
    for (const Date& bad :
         {Date{2023, 2, 29}, Date{2024, 13, 1}, Date{2024, 0, 1}, Date{2024, 4, 31}, Date{2024, 4, 0}}) {
        EXPECT_FALSE(IsValid(bad));
    }
    EXPECT_FALSE(IsValid(DateTime{{2024, 1, 1}, 24, 0, 0, 0}));
}

}  // namespace
}  // namespace rlx
