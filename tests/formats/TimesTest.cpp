#include "formats/Times.h"

#include <gtest/gtest.h>

namespace zg {

TEST(FormatTimes, FaultsAreNamed) {
    EXPECT_EQ(faultOfDate(2005, 2, 29), "day 29 is not in month 2 of 2005");
    EXPECT_EQ(faultOfDate(2000, 2, 29), "");
    EXPECT_EQ(faultOfDate(1900, 2, 29), "day 29 is not in month 2 of 1900");
    EXPECT_EQ(faultOfDate(2004, 13, 1), "month 13 is not between 1 and 12");
    EXPECT_EQ(faultOfHour(25, 0), "hour 25 is not between 0 and 24");
}

TEST(FormatTimes, LeapYearsOfTheCalendarAndOfTheDialogs) {
    for (const int year : {1904, 2000, 2024}) {
        EXPECT_TRUE(isLeapYear(year)) << year;
        EXPECT_TRUE(isLeapYearOfDialogs(year)) << year;
        EXPECT_EQ(daysOfMonth(year, 2), 29) << year;
    }
    for (const int year : {1900, 2100}) {
        EXPECT_FALSE(isLeapYear(year)) << year;
        EXPECT_TRUE(isLeapYearOfDialogs(year)) << "every fourth, " << year;
        EXPECT_EQ(daysOfMonth(year, 2), 28) << year;
    }
    EXPECT_FALSE(isLeapYear(2023));
    EXPECT_FALSE(isLeapYearOfDialogs(2023));
    EXPECT_EQ(daysOfMonth(2023, 12), 31);
}

}  // namespace zg
