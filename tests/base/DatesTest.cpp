#include "base/Dates.h"

#include <gtest/gtest.h>

#include "tests/support/Raises.h"

namespace zg {
namespace {

TEST(MakeDate, KnowsLeapDays) {
    EXPECT_EQ(formatDate(makeDate(2000, 2, 29)), "Feb 29, 2000");
    EXPECT_EQ(formatDate(makeDate(1988, 2, 29)), "Feb 29, 1988");
    EXPECT_RAISES(13, "Type mismatch", makeDate(1900, 2, 29));
    EXPECT_RAISES(13, "Type mismatch", makeDate(2001, 2, 29));
}

TEST(MakeDate, RefusesWhatNoCalendarHas) {
    EXPECT_RAISES(13, "Type mismatch", makeDate(2001, 0, 1));
    EXPECT_RAISES(13, "Type mismatch", makeDate(2001, 13, 1));
    EXPECT_RAISES(13, "Type mismatch", makeDate(2001, 4, 31));
    EXPECT_RAISES(13, "Type mismatch", makeDate(2001, 1, 0));
    EXPECT_RAISES(13, "Type mismatch", makeDate(99, 1, 1));
    EXPECT_RAISES(13, "Type mismatch", makeDate(10000, 1, 1));
    EXPECT_RAISES(13, "Type mismatch", makeDate(2001, 257, 1));
    EXPECT_RAISES(13, "Type mismatch", makeDate(2001, 1, 257));
}

TEST(DateTime, CountsFromItsEpoch) {
    EXPECT_EQ(makeDate(1899, 12, 30).seconds, 0);
    EXPECT_EQ(makeDate(1899, 12, 31).seconds, 86400);
}

TEST(DateTime, HoldsMomentsBeforeItsEpoch) {
    const DateTime moment = addSeconds(makeDate(1800, 3, 1), -1);
    EXPECT_EQ(formatDate(moment), "Feb 28, 1800");
    EXPECT_EQ(longTime(timeOf(moment)), "11:59:59 PM");
}

TEST(MonthName3, GivesNothingOutsideTheYear) {
    EXPECT_EQ(MonthName3("1"), "Jan");
    EXPECT_EQ(MonthName3(" 12 "), "Dec");
    EXPECT_EQ(MonthName3("07"), "Jul");
    EXPECT_EQ(MonthName3("0"), "");
    EXPECT_EQ(MonthName3("13"), "");
    EXPECT_EQ(MonthName3("x"), "");
    EXPECT_EQ(MonthName3(""), "");
}

TEST(DateFromParts, ReadsYearMonthAndDay) {
    EXPECT_EQ(formatDate(DateFromParts("1990", "3", "5")), "Mar 5, 1990");
    EXPECT_EQ(formatDate(DateFromParts("2001", "12", "31")), "Dec 31, 2001");
}

TEST(DateFromParts, PutsTwoDigitYearsIntoTheirCentury) {
    EXPECT_EQ(formatDate(DateFromParts("00", "1", "1")), "Jan 1, 2000");
    EXPECT_EQ(formatDate(DateFromParts("29", "1", "1")), "Jan 1, 2029");
    EXPECT_EQ(formatDate(DateFromParts("30", "1", "1")), "Jan 1, 1930");
    EXPECT_EQ(formatDate(DateFromParts("88", "2", "29")), "Feb 29, 1988");
    EXPECT_EQ(formatDate(DateFromParts("99", "1", "1")), "Jan 1, 1999");
}

TEST(DateFromParts, RefusesWhatIsNoDate) {
    EXPECT_RAISES(13, "Type mismatch", DateFromParts("2001", "13", "1"));
    EXPECT_RAISES(13, "Type mismatch", DateFromParts("2001", "2", "30"));
    EXPECT_RAISES(13, "Type mismatch", DateFromParts("", "1", "1"));
    EXPECT_RAISES(13, "Type mismatch", DateFromParts("2001", "1", ""));
    EXPECT_RAISES(13, "Type mismatch", DateFromParts("2001", "1", "-1"));
    EXPECT_RAISES(13, "Type mismatch", DateFromParts("12345", "1", "1"));
    EXPECT_RAISES(13, "Type mismatch", DateFromParts("2001", "1", "1x"));
}

TEST(ParseDate, AllowsBlanksRoundTheComma) {
    EXPECT_EQ(formatDate(parseDate("Mar 5 ,1990")), "Mar 5, 1990");
    EXPECT_EQ(formatDate(parseDate(" mar  5,  1990 ")), "Mar 5, 1990");
    EXPECT_RAISES(13, "Type mismatch", parseDate("Mar 5 1990"));
    EXPECT_RAISES(13, "Type mismatch", parseDate(""));
}

TEST(ParseTime, TakesOneOrTwoDigitsInTheirRanges) {
    EXPECT_EQ(longTime(parseTime("0:0:0")), "12:00:00 AM");
    EXPECT_EQ(longTime(parseTime("12:05:09")), "12:05:09 PM");
    EXPECT_EQ(longTime(parseTime("23:59:59")), "11:59:59 PM");
    EXPECT_EQ(longTime(parseTime("1:0:0")), "1:00:00 AM");
    for (const char* text :
         {"24:00:00", "1:60:0", "1:0:60", "1:0", "1:0:0:0", "", "a:b:c", "-1:0:0", "001:0:0"})
        EXPECT_RAISES(13, "Type mismatch", parseTime(text)) << text;
}

TEST(TimeSerial, LetsItsPartsOverflow) {
    EXPECT_EQ(timeSerial(0, 0, 3600), 3600);
    EXPECT_EQ(timeSerial(25, 61, 61), 25 * 3600 + 61 * 60 + 61);
    EXPECT_EQ(timeSerial(1, -1, 0), 3540);
}

TEST(Adding, CrossesDaysMonthsAndYears) {
    EXPECT_EQ(formatDate(addDays(makeDate(2001, 12, 31), 1)), "Jan 1, 2002");
    EXPECT_EQ(formatDate(addDays(makeDate(2000, 3, 1), -1)), "Feb 29, 2000");
    EXPECT_EQ(formatDate(addSeconds(makeDate(2001, 1, 1), -1)), "Dec 31, 2000");
}

TEST(AddHours, TakesHalves) {
    EXPECT_EQ(longTime(timeOf(addHours(makeDate(2001, 1, 1), 5.5))), "5:30:00 AM");
    EXPECT_EQ(formatDate(addHours(makeDate(2001, 1, 1), -3.5)), "Dec 31, 2000");
}

}  // namespace
}  // namespace zg
