#include "tempoline/Times.h"

#include <gtest/gtest.h>

namespace zg::tempoline {

TEST(Times, CountsDaysFromTheEpoch) {
    EXPECT_EQ(daysFromDate(1970, 1, 1), 0);
    EXPECT_EQ(daysFromDate(2000, 3, 1), 11017);
    EXPECT_EQ(daysFromDate(1969, 12, 31), -1);
    EXPECT_EQ(daysFromDate(1, 1, 1), -719162);
}

TEST(Times, EveryDayOfEightCenturiesComesBack) {
    int year = 1599;
    int month = 12;
    int day = 31;
    for (std::int64_t at = daysFromDate(1599, 12, 31); year < 2400; ++at) {
        const Calendar calendar = calendarOf(at * secondsADay + 7 * secondsAnHour + 5);
        ASSERT_EQ(calendar.year, year);
        ASSERT_EQ(calendar.month, month);
        ASSERT_EQ(calendar.day, day);
        ASSERT_EQ(calendar.hour, 7);
        ASSERT_EQ(calendar.second, 5);
        ASSERT_EQ(daysFromDate(year, month, day), at);
        if (++day > daysOfMonth(year, month)) {
            day = 1;
            month = month % 12 + 1;
            if (month == 1) ++year;
        }
    }
}

TEST(Times, HourTwentyFourIsTheNextDay) {
    EXPECT_EQ(momentOf(2004, 2, 28, 24, 0), momentOf(2004, 2, 29, 0, 0));
    EXPECT_EQ(momentOf(2004, 12, 31, 24, 0), momentOf(2005, 1, 1, 0, 0));
    EXPECT_EQ(momentOfJulianDay(2004, 366, 24, 0), momentOf(2005, 1, 1, 0, 0));
    EXPECT_EQ(momentOfJulianDay(2004, 60, 1, 30), momentOf(2004, 2, 29, 1, 30));
}

}  // namespace zg::tempoline
