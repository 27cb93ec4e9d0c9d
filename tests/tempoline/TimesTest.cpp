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

TEST(Times, TwoDigitYears) {
    EXPECT_EQ(fullYear(50), 1950);
    EXPECT_EQ(fullYear(99), 1999);
    EXPECT_EQ(fullYear(0), 2000);
    EXPECT_EQ(fullYear(49), 2049);
    EXPECT_EQ(fullYear(1988), 1988);
}

TEST(Times, ZonesOnBothSidesAndOfHalfHours) {
    EXPECT_EQ(zoneOffset("UTC-0500"), -5 * secondsAnHour);
    EXPECT_EQ(zoneOffset(" utc+0530 "), 5 * secondsAnHour + 1800);
    EXPECT_EQ(zoneOffset("UTC-0330"), -3 * secondsAnHour - 1800);
    for (const char* const key :
         {"", "UTC", "EST", "UTC0500", "UTC-5:00", "UTC-0560", "UTC+1500", "UTC-05000"})
        EXPECT_FALSE(zoneOffset(key)) << key;
}

TEST(Times, FaultsAreNamed) {
    EXPECT_EQ(faultOfDate(2005, 2, 29), "day 29 is not in month 2 of 2005");
    EXPECT_EQ(faultOfDate(2000, 2, 29), "");
    EXPECT_EQ(faultOfDate(1900, 2, 29), "day 29 is not in month 2 of 1900");
    EXPECT_EQ(faultOfDate(2004, 13, 1), "month 13 is not between 1 and 12");
    EXPECT_EQ(faultOfHour(25, 0), "hour 25 is not between 0 and 24");
}

TEST(Times, TheKeyOfAZone) {
    for (const char* const key : {"UTC+0000", "UTC-0330", "UTC+0545", "UTC+1400"})
        EXPECT_EQ(zoneText(*zoneOffset(key)), key);
}

}  // namespace zg::tempoline
