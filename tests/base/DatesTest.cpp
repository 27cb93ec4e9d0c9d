#include "base/Dates.h"

#include <gtest/gtest.h>

#include <cmath>
#include <cstdint>
#include <limits>
#include <string>

#include "tests/support/Raises.h"

namespace zg {
namespace {

TEST(MakeDate, KnowsLeapDays) {
    EXPECT_EQ(formatDate(makeDate(2000, 2, 29)), "Feb 29, 2000");
    EXPECT_EQ(formatDate(makeDate(1988, 2, 29)), "Feb 29, 1988");
    EXPECT_RAISES(13, "Type mismatch", makeDate(1900, 2, 29));
    EXPECT_RAISES(13, "Type mismatch", makeDate(2001, 2, 29));
    EXPECT_EQ(formatDate(addDays(makeDate(1900, 2, 28), 1)), "Mar 1, 1900");
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
    EXPECT_RAISES(13, "Type mismatch", makeDate(2001, -1, 1));
    EXPECT_RAISES(13, "Type mismatch", makeDate(2001, 1, -1));
    EXPECT_RAISES(13, "Type mismatch", makeDate(2001, 1, 32));
    EXPECT_RAISES(13, "Type mismatch", makeDate(-2001, 1, 1));
    EXPECT_RAISES(13, "Type mismatch", makeDate(65536 + 2001, 1, 1));
}

TEST(MakeDate, TakesTheFirstAndTheLastYear) {
    EXPECT_EQ(formatDate(makeDate(100, 1, 1)), "Jan 1, 100");
    EXPECT_EQ(formatDate(makeDate(9999, 12, 31)), "Dec 31, 9999");
}

TEST(DateTime, GivesItsPartsBack) {
    for (const int year : {100, 1899, 1900, 1970, 2000, 2001, 9999}) {
        for (int month = 1; month <= 12; ++month) {
            const DateTime moment = addSeconds(makeDate(year, month, 28), 86399);
            const CalendarDate date = dateOf(moment);
            EXPECT_EQ(date.year, year);
            EXPECT_EQ(date.month, month);
            EXPECT_EQ(date.day, 28);
            const TimeOfDay time = timeOf(moment);
            EXPECT_EQ(time.hour * 3600 + time.minute * 60 + time.second, 86399);
        }
    }
}

TEST(DateTime, CountsFromItsEpoch) {
    EXPECT_EQ(makeDate(1899, 12, 30).seconds, 0);
    EXPECT_EQ(makeDate(1899, 12, 31).seconds, 86400);
}

TEST(DateTime, HoldsMomentsBeforeItsEpoch) {
    const DateTime moment = addSeconds(makeDate(1800, 3, 1), -1);
    EXPECT_EQ(formatDate(moment), "Feb 28, 1800");
    EXPECT_EQ(longTime(timeOf(moment)), "11:59:59 PM");
    EXPECT_EQ(formatDate({-1}), "Dec 29, 1899");
    EXPECT_EQ(longTime(timeOf({-1})), "11:59:59 PM");
    EXPECT_EQ(formatDate({-86400}), "Dec 29, 1899");
    EXPECT_EQ(longTime(timeOf({-86400})), "12:00:00 AM");
}

TEST(MonthName3, GivesNothingOutsideTheYear) {
    EXPECT_EQ(MonthName3("1"), "Jan");
    EXPECT_EQ(MonthName3(" 12 "), "Dec");
    EXPECT_EQ(MonthName3("07"), "Jul");
    EXPECT_EQ(MonthName3("0"), "");
    EXPECT_EQ(MonthName3("13"), "");
    EXPECT_EQ(MonthName3("x"), "");
    EXPECT_EQ(MonthName3(""), "");
    EXPECT_EQ(MonthName3("-1"), "");
    EXPECT_EQ(MonthName3("1e400"), "");
    EXPECT_EQ(MonthName3("-1e400"), "");
    const char* const names[] = {"Jan", "Feb", "Mar", "Apr", "May", "Jun",
                                 "Jul", "Aug", "Sep", "Oct", "Nov", "Dec"};
    for (int month = 1; month <= 12; ++month) EXPECT_EQ(MonthName3(std::to_string(month)), names[month - 1]);
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
    EXPECT_EQ(formatDate(DateFromParts("0", "1", "1")), "Jan 1, 2000");
    EXPECT_EQ(formatDate(DateFromParts("7", "1", "1")), "Jan 1, 2007");
    EXPECT_EQ(formatDate(DateFromParts("100", "1", "1")), "Jan 1, 100");
    EXPECT_EQ(formatDate(DateFromParts("00", "2", "29")), "Feb 29, 2000");
    EXPECT_RAISES(13, "Type mismatch", DateFromParts("30", "2", "29"));
}

TEST(DateFromParts, RefusesWhatIsNoDate) {
    EXPECT_RAISES(13, "Type mismatch", DateFromParts("2001", "13", "1"));
    EXPECT_RAISES(13, "Type mismatch", DateFromParts("2001", "2", "30"));
    EXPECT_RAISES(13, "Type mismatch", DateFromParts("", "1", "1"));
    EXPECT_RAISES(13, "Type mismatch", DateFromParts("2001", "1", ""));
    EXPECT_RAISES(13, "Type mismatch", DateFromParts("2001", "1", "-1"));
    EXPECT_RAISES(13, "Type mismatch", DateFromParts("12345", "1", "1"));
    EXPECT_RAISES(13, "Type mismatch", DateFromParts("2001", "1", "1x"));
    EXPECT_RAISES(13, "Type mismatch", DateFromParts("2001", "", "1"));
    EXPECT_RAISES(13, "Type mismatch", DateFromParts("2001", "0", "1"));
    EXPECT_RAISES(13, "Type mismatch", DateFromParts("2001", "1", "0"));
    EXPECT_RAISES(13, "Type mismatch", DateFromParts("2001", "1", "32"));
    EXPECT_RAISES(13, "Type mismatch", DateFromParts("2001", "1", "+1"));
    EXPECT_RAISES(13, "Type mismatch", DateFromParts("2001", "1", "1 1"));
    EXPECT_RAISES(13, "Type mismatch", DateFromParts("2001", "1", "1,5"));
    EXPECT_RAISES(13, "Type mismatch", DateFromParts("-2001", "1", "1"));
    EXPECT_RAISES(13, "Type mismatch", DateFromParts("1900", "2", "29"));
}

TEST(ParseDate, AllowsBlanksRoundTheComma) {
    EXPECT_EQ(formatDate(parseDate("Mar 5 ,1990")), "Mar 5, 1990");
    EXPECT_EQ(formatDate(parseDate(" mar  5,  1990 ")), "Mar 5, 1990");
    EXPECT_RAISES(13, "Type mismatch", parseDate("Mar 5 1990"));
    EXPECT_RAISES(13, "Type mismatch", parseDate(""));
    EXPECT_EQ(formatDate(parseDate("DEC 31,99")), "Dec 31, 1999");
    for (const char* text : {"Foo 5 ,1990", "5 Mar ,1990", "Mar 5 , 19 90", "Mar 5,1990,1", "Mar\t5,1990",
                             ",", " ,1990", "Mar 5 ,", "Mar 005,1990", "Mar 5,01990", "Mar 99999999999,1990"})
        EXPECT_RAISES(13, "Type mismatch", parseDate(text)) << text;
}

TEST(ParseTime, TakesOneOrTwoDigitsInTheirRanges) {
    EXPECT_EQ(longTime(parseTime("0:0:0")), "12:00:00 AM");
    EXPECT_EQ(longTime(parseTime("12:05:09")), "12:05:09 PM");
    EXPECT_EQ(longTime(parseTime("23:59:59")), "11:59:59 PM");
    EXPECT_EQ(longTime(parseTime("1:0:0")), "1:00:00 AM");
    for (const char* text :
         {"24:00:00", "1:60:0", "1:0:60", "1:0", "1:0:0:0", "", "a:b:c", "-1:0:0", "001:0:0", "+1:0:0",
          "1::0", ":::", "1:0:0 PM", "1:0:0\t", "1.5:0:0", "99999999999:0:0"})
        EXPECT_RAISES(13, "Type mismatch", parseTime(text)) << text;
    EXPECT_EQ(longTime(parseTime(" 7 : 8 : 9 ")), "7:08:09 AM");
}

TEST(LongTime, TurnsAtMidnightAndNoon) {
    EXPECT_EQ(longTime({0, 0, 59}), "12:00:59 AM");
    EXPECT_EQ(longTime({11, 59, 59}), "11:59:59 AM");
    EXPECT_EQ(longTime({12, 0, 0}), "12:00:00 PM");
    EXPECT_EQ(longTime({13, 1, 2}), "1:01:02 PM");
}

TEST(TimeSerial, LetsItsPartsOverflow) {
    EXPECT_EQ(timeSerial(0, 0, 3600), 3600);
    EXPECT_EQ(timeSerial(25, 61, 61), 25 * 3600 + 61 * 60 + 61);
    EXPECT_EQ(timeSerial(1, -1, 0), 3540);
    EXPECT_EQ(timeSerial(0, 0, -1), -1);
    constexpr std::int64_t large = std::numeric_limits<std::int64_t>::max();
    EXPECT_RAISES(6, "Overflow", timeSerial(large, 0, 0));
    EXPECT_RAISES(6, "Overflow", timeSerial(0, -large, 0));
    EXPECT_RAISES(6, "Overflow", timeSerial(0, 0, std::int64_t(1) << 31U));
    EXPECT_EQ(timeSerial(0, 0, 2147483647), 2147483647);
}

TEST(Adding, CrossesDaysMonthsAndYears) {
    EXPECT_EQ(formatDate(addDays(makeDate(2001, 12, 31), 1)), "Jan 1, 2002");
    EXPECT_EQ(formatDate(addDays(makeDate(2000, 3, 1), -1)), "Feb 29, 2000");
    EXPECT_EQ(formatDate(addSeconds(makeDate(2001, 1, 1), -1)), "Dec 31, 2000");
}

TEST(Adding, RaisesOverflowOutsideTheYears) {
    const DateTime first = makeDate(100, 1, 1);
    const DateTime last = addSeconds(makeDate(9999, 12, 31), 86399);
    EXPECT_EQ(formatDate(addSeconds(last, first.seconds - last.seconds)), "Jan 1, 100");
    EXPECT_RAISES(6, "Overflow", addSeconds(first, -1));
    EXPECT_RAISES(6, "Overflow", addSeconds(last, 1));
    EXPECT_RAISES(6, "Overflow", addDays(makeDate(9999, 12, 31), 1));
    EXPECT_RAISES(6, "Overflow", addDays(first, -1));
    constexpr std::int64_t large = std::numeric_limits<std::int64_t>::max();
    for (const std::int64_t amount : {large, -large - 1}) {
        EXPECT_RAISES(6, "Overflow", addSeconds({}, amount));
        EXPECT_RAISES(6, "Overflow", addDays({}, amount));
        EXPECT_RAISES(6, "Overflow", addSeconds({amount}, -1));
        EXPECT_RAISES(6, "Overflow", addHours({}, static_cast<double>(amount)));
    }
    EXPECT_RAISES(6, "Overflow", addHours({}, std::nan("")));
    EXPECT_RAISES(6, "Overflow", addHours({}, std::numeric_limits<double>::infinity()));
}

TEST(AddHours, TakesHalves) {
    EXPECT_EQ(longTime(timeOf(addHours(makeDate(2001, 1, 1), 5.5))), "5:30:00 AM");
    EXPECT_EQ(formatDate(addHours(makeDate(2001, 1, 1), -3.5)), "Dec 31, 2000");
    EXPECT_EQ(longTime(timeOf(addHours(makeDate(2001, 1, 1), -3.5))), "8:30:00 PM");
    EXPECT_EQ(longTime(timeOf(addHours(makeDate(2001, 1, 1), 1.0 / 3))), "12:20:00 AM");
    EXPECT_EQ(addHours({}, 0.6 / 3600).seconds, 1);
    EXPECT_EQ(addHours({}, 0.4 / 3600).seconds, 0);
}

TEST(FullYear, TwoDigitsPartAtThirty) {
    EXPECT_EQ(fullYear(0), 2000);
    EXPECT_EQ(fullYear(29), 2029);
    EXPECT_EQ(fullYear(30), 1930);
    EXPECT_EQ(fullYear(99), 1999);
    for (const int year : {-1, 100, 1988}) EXPECT_EQ(fullYear(year), year);
}

}  // namespace
}  // namespace zg
