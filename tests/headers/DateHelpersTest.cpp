#include "headers/DateHelpers.h"

#include <gtest/gtest.h>

#include <limits>

#include "tests/support/Raises.h"

namespace {

using namespace zg;

struct DayOfYear {
    std::int16_t year;
    std::int16_t julianDay;
    std::int16_t month;
    std::int16_t day;
};

class DayOfYearTest : public testing::TestWithParam<DayOfYear> {};

TEST_P(DayOfYearTest, GivesMonthAndDay) {
    const MonthAndDay date = VBGRDAY(GetParam().year, GetParam().julianDay);
    EXPECT_EQ(date.month(), GetParam().month);
    EXPECT_EQ(date.day(), GetParam().day);
}

INSTANTIATE_TEST_SUITE_P(
    Days, DayOfYearTest,
    testing::Values(DayOfYear{2000, 60, 2, 29}, DayOfYear{1900, 60, 2, 29}, DayOfYear{2001, 60, 3, 1},
                    DayOfYear{2001, 59, 2, 28}, DayOfYear{2001, 1, 1, 1}, DayOfYear{2001, 31, 1, 31},
                    DayOfYear{2001, 32, 2, 1}, DayOfYear{2001, 365, 12, 31}, DayOfYear{2000, 366, 12, 31},
                    DayOfYear{2000, 31, 1, 31}, DayOfYear{2000, 335, 11, 30}, DayOfYear{2001, 334, 11, 30},
                    DayOfYear{90, 59, 2, 28}, DayOfYear{0, 60, 2, 29}, DayOfYear{-4, 366, 12, 31}));

TEST(DaysOfYears, EveryDayOfTheYearIsThatOfTheCalendar) {
    for (const auto& [year, days] : {std::pair{2001, 365}, std::pair{2004, 366}})
        for (int day = 1; day <= days; ++day) {
            const CalendarDate expected = dateOf(addDays(makeDate(year, 1, 1), day - 1));
            const MonthAndDay date = VBGRDAY(static_cast<std::int16_t>(year), static_cast<std::int16_t>(day));
            EXPECT_EQ(date.month(), expected.month) << day;
            EXPECT_EQ(date.day(), expected.day) << day;
        }
}

class NoDayOfYearTest : public testing::TestWithParam<std::pair<std::int16_t, std::int16_t>> {};

TEST_P(NoDayOfYearTest, LeavesTheResultEmpty) {
    const MonthAndDay date = VBGRDAY(GetParam().first, GetParam().second);
    EXPECT_TRUE(date.empty());
    EXPECT_RAISES(13, "Type mismatch", date.month());
    EXPECT_RAISES(13, "Type mismatch", date.day());
}

INSTANTIATE_TEST_SUITE_P(Days, NoDayOfYearTest,
                         testing::Values(std::pair(2001, 366), std::pair(2000, 367), std::pair(2000, 0),
                                         std::pair(2000, -1), std::pair(2000, 32767),
                                         std::pair(-32768, -32768)));

TEST(SecondsOfAnHour, MinSecOfLeavesTheRemainderInItsArgument) {
    std::int16_t seconds = 3661;
    EXPECT_EQ(MinSecOf(seconds), (std::array<std::int16_t, 2>{61, 1}));
    EXPECT_EQ(seconds, 1);
}

TEST(SecondsOfAnHour, HoursMinutesAndSecondsOfACopyEach) {
    std::int16_t seconds = 7384;
    EXPECT_EQ(HoursOf(seconds), 2);
    EXPECT_EQ(SecondsOf(seconds), 4);
    EXPECT_EQ(seconds, 7384);
    EXPECT_EQ(MinutesOf(seconds), 3);
}

TEST(SecondsOfAnHour, MinutesOfTakesTheHoursOffItsArgument) {
    std::int16_t seconds = 7384;
    MinutesOf(seconds);
    EXPECT_EQ(seconds, 184);
    EXPECT_EQ(HoursOf(seconds), 0) << "a second use of the same variable gives the rest's figures";
}

TEST(SecondsOfAnHour, AWholeHourIsMinuteZero) {
    std::int16_t seconds = 3600;
    EXPECT_EQ(SecondsOf(seconds), 0);
    EXPECT_EQ(HoursOf(seconds), 1);
    EXPECT_EQ(MinutesOf(seconds), 0);
    EXPECT_EQ(seconds, 0);
}

TEST(SecondsOfAnHour, TheWholeWidthIsServed) {
    std::int16_t largest = std::numeric_limits<std::int16_t>::max();
    EXPECT_EQ(HoursOf(largest), 9);
    EXPECT_EQ(SecondsOf(largest), 7);
    EXPECT_EQ(MinutesOf(largest), 6);
    std::int16_t smallest = std::numeric_limits<std::int16_t>::min();
    EXPECT_EQ(HoursOf(smallest), -9);
    EXPECT_EQ(SecondsOf(smallest), -8);
    EXPECT_EQ(MinutesOf(smallest), -6);
}

TEST(AddTimeToDateTest, ReplacesTheTimeOfDay) {
    const DateTime noon = addSeconds(makeDate(2001, 3, 5), 12 * 3600);
    EXPECT_EQ(AddTimeToDate(noon, "1:02:03"), addSeconds(makeDate(2001, 3, 5), 3723));
    EXPECT_EQ(AddTimeToDate(makeDate(2001, 3, 5), "23:59:59"), addSeconds(makeDate(2001, 3, 5), 86399));
}

TEST(AddTimeToDateTest, WorksBeforeTheCountOfDaysBegins) {
    const DateTime early = addSeconds(makeDate(1850, 1, 1), 3600);
    EXPECT_EQ(AddTimeToDate(early, "0:00:00"), makeDate(1850, 1, 1));
}

TEST(AddTimeToDateTest, WhatIsNoTimeIsATypeMismatch) {
    for (const char* text : {"", "24:00:00", "1:60:00", "1:00", "a:b:c"})
        EXPECT_RAISES(13, "Type mismatch", AddTimeToDate(makeDate(2001, 1, 1), text)) << text;
}

TEST(DatesReachTheDialogsThroughTheHelpers, NamesAndParts) {
    EXPECT_EQ(MonthName3("3"), "Mar");
    EXPECT_EQ(MonthName3("13"), "");
    EXPECT_EQ(DateFromParts("1990", "3", "5"), makeDate(1990, 3, 5));
    EXPECT_EQ(DateFromParts("90", "3", "5"), makeDate(1990, 3, 5));
    EXPECT_RAISES(13, "Type mismatch", DateFromParts("1990", "0", "5"));
}

}  // namespace
