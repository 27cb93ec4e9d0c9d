#include "windtable/TableTimes.h"

#include <gtest/gtest.h>

namespace zg {

namespace {

/// "2016-01-09 15:30 UTC+0100" as a form reads these values, "none" for what is no time.
std::string readAs(TimeForm form, std::vector<std::string_view> values, const std::string& pattern = {}) {
    const auto time = tableTime(form, pattern, values);
    if (!time) return "none";
    return timeText(time->seconds) + (time->zone ? " " + zoneWord(*time->zone) : "");
}

std::string yearFirst(std::string_view text) { return readAs(TimeForm::YearFirst, {text}); }
std::string dayFirst(std::string_view text) { return readAs(TimeForm::DayFirst, {text}); }
std::string monthFirst(std::string_view text) { return readAs(TimeForm::MonthFirst, {text}); }
std::string byPattern(const std::string& pattern, std::string_view text) {
    return readAs(TimeForm::Pattern, {text}, pattern);
}

}  // namespace

TEST(TableTimes, ReadTheYearFirstWithAndWithoutSeparators) {
    EXPECT_EQ(yearFirst("2016-01-09 15:30"), "2016-01-09 15:30");
    EXPECT_EQ(yearFirst("2016-01-09T15:30:59.999"), "2016-01-09 15:30");
    EXPECT_EQ(yearFirst("2016/1/9 5:30"), "2016-01-09 05:30");
    EXPECT_EQ(yearFirst("2016-01-09"), "2016-01-09 00:00");
    EXPECT_EQ(yearFirst("20160109"), "2016-01-09 00:00");
    EXPECT_EQ(yearFirst("20160109T1530"), "2016-01-09 15:30");
    EXPECT_EQ(yearFirst("201601091530"), "2016-01-09 15:30");
    EXPECT_EQ(yearFirst("2016-12-31 24:00"), "2017-01-01 00:00");
    EXPECT_EQ(yearFirst("2016-02-29 00:00"), "2016-02-29 00:00");
    EXPECT_EQ(yearFirst("2016-Jan-09 15:30"), "2016-01-09 15:30");
    for (const char* const text :
         {"2015-02-29 00:00", "2016-13-01", "2016-00-01", "2016-01-00", "2016-01-09 25:00",
          "2016-01-09 15:60", "2016-01-09 15:30:60", "2016-01/09", "2016-01-09 x", "09/01/2016", "16-01-09",
          "2016-01", "1452353400", ""})
        EXPECT_EQ(yearFirst(text), "none") << text;
}

TEST(TableTimes, ReadTheZoneBehindATime) {
    EXPECT_EQ(yearFirst("2016-01-09T15:30Z"), "2016-01-09 15:30 UTC+0000");
    EXPECT_EQ(yearFirst("2016-01-09 15:30:00+00:00"), "2016-01-09 15:30 UTC+0000");
    EXPECT_EQ(yearFirst("2016-01-09 15:30 -0330"), "2016-01-09 15:30 UTC-0330");
    EXPECT_EQ(yearFirst("2016-01-09 15:30+01"), "2016-01-09 15:30 UTC+0100");
    EXPECT_EQ(yearFirst("2016-01-09 15:30 UTC"), "2016-01-09 15:30 UTC+0000");
    EXPECT_EQ(yearFirst("2016-01-09 15:30+15:00"), "none");
    EXPECT_EQ(yearFirst("2016-01-09 15:30 EST"), "none");
}

TEST(TableTimes, ReadTheDayOrTheMonthFirst) {
    EXPECT_EQ(dayFirst("09/01/2016 15:30"), "2016-01-09 15:30");
    EXPECT_EQ(monthFirst("09/01/2016 15:30"), "2016-09-01 15:30");
    EXPECT_EQ(dayFirst("9.1.16 15:30:00"), "2016-01-09 15:30");
    EXPECT_EQ(dayFirst("9.1.30"), "1930-01-09 00:00");
    EXPECT_EQ(dayFirst("9.1.29"), "2029-01-09 00:00");
    EXPECT_EQ(dayFirst("9.1.00"), "2000-01-09 00:00");
    EXPECT_EQ(monthFirst("1/9/2016 3:30 PM"), "2016-01-09 15:30");
    EXPECT_EQ(monthFirst("1/9/2016 12:05:10 am"), "2016-01-09 00:05");
    EXPECT_EQ(monthFirst("1/9/2016 13:30 PM"), "none");
    EXPECT_EQ(dayFirst("9-Jan-2016 15:30"), "2016-01-09 15:30");
    EXPECT_EQ(monthFirst("9-Jan-2016 15:30"), "none");
    EXPECT_EQ(dayFirst("13/13/2016"), "none");
    EXPECT_EQ(monthFirst("13/12/2016"), "none");
    EXPECT_EQ(dayFirst("1/2/3"), "none");
}

TEST(TableTimes, ReadDateAndTimeOfDayInTwoColumns) {
    const auto both = [](std::string_view date, std::string_view clock) {
        return readAs(TimeForm::DayFirst, {date, clock});
    };
    EXPECT_EQ(both("09/01/2016", "15:30"), "2016-01-09 15:30");
    EXPECT_EQ(both("09/01/2016", "1530"), "2016-01-09 15:30");
    EXPECT_EQ(both("09/01/2016", "930"), "2016-01-09 09:30");
    EXPECT_EQ(both("09/01/2016", "24"), "2016-01-10 00:00");
    EXPECT_EQ(both("09/01/2016", ""), "2016-01-09 00:00");
    EXPECT_EQ(both("09/01/2016 1", "15:30"), "none");
    EXPECT_EQ(both("", "15:30"), "none");
}

TEST(TableTimes, ReadPartsAndSecondsOfTheEpoch) {
    EXPECT_EQ(readAs(TimeForm::Parts, {"2016", "01", "09", "15", "30"}), "2016-01-09 15:30");
    EXPECT_EQ(readAs(TimeForm::Parts, {"16", "1", "9"}), "2016-01-09 00:00");
    EXPECT_EQ(readAs(TimeForm::Parts, {"30", "1", "9"}), "1930-01-09 00:00");
    EXPECT_EQ(readAs(TimeForm::Parts, {"29", "1", "9"}), "2029-01-09 00:00");
    EXPECT_EQ(readAs(TimeForm::Parts, {"2016", "1.0", "9", "24"}), "2016-01-10 00:00");
    EXPECT_EQ(readAs(TimeForm::Parts, {"2016", "257", "9", "0"}), "none");
    EXPECT_EQ(readAs(TimeForm::Parts, {"2016", "1", "9", "x"}), "none");
    EXPECT_EQ(readAs(TimeForm::Parts, {"2016", "1"}), "none");
    EXPECT_EQ(readAs(TimeForm::Epoch, {"1452353400"}), "2016-01-09 15:30 UTC+0000");
    EXPECT_EQ(readAs(TimeForm::Epoch, {"1452353400000"}), "2016-01-09 15:30 UTC+0000");
    EXPECT_EQ(readAs(TimeForm::Epoch, {"1452353400.5"}), "2016-01-09 15:30 UTC+0000");
    for (const char* const text : {"17", "nan", "1e300", "-1452353400", "1452353400x"})
        EXPECT_EQ(readAs(TimeForm::Epoch, {text}), "none") << text;
}

TEST(TableTimes, ReadByAPattern) {
    EXPECT_EQ(byPattern("%d.%m.%y %H:%M", "9.1.16 15:30"), "2016-01-09 15:30");
    EXPECT_EQ(byPattern("%d.%m.%y", "9.1.30"), "1930-01-09 00:00");
    EXPECT_EQ(byPattern("%d.%m.%y", "9.1.29"), "2029-01-09 00:00");
    EXPECT_EQ(byPattern("%Y%j %H%M%S", "2016009 153000"), "2016-01-09 15:30");
    EXPECT_EQ(byPattern("%b %d %Y %I:%M %p", "Jan 9 2016 03:30 PM"), "2016-01-09 15:30");
    EXPECT_EQ(byPattern("[%Y-%m-%d]%H:%M%z", "[2016-01-09]15:30+0100"), "2016-01-09 15:30 UTC+0100");
    EXPECT_EQ(byPattern("%s", "1452353400"), "2016-01-09 15:30 UTC+0000");
    EXPECT_EQ(byPattern("%d.%m.%y %H:%M", "9.1.16 15:30:00"), "none");
    EXPECT_EQ(byPattern("%d.%m.%y", "9/1/16"), "none");
    EXPECT_EQ(byPattern("%Y-%j", "2016-367"), "none");
    EXPECT_TRUE(isTimePattern("%d/%m/%Y"));
    for (const char* const text : {"", "dd/mm/yyyy", "%d/%q", "%", "100%%", "%d!%m"})
        EXPECT_FALSE(isTimePattern(text)) << text;
}

}  // namespace zg
