#include "tempoline/RoseTable.h"

#include <gtest/gtest.h>

#include "tempoline/FrqWriter.h"
#include "tests/tempoline/TempolineSupport.h"

namespace zg::tempoline {

TEST(RoseTable, ClassesBeginAtTheirLimits) {
    const std::array<double, classCount> limits = dayControl().rules.classLimits;
    EXPECT_EQ(classOf(0.5, limits), 0U);
    EXPECT_EQ(classOf(1.799, limits), 0U);
    EXPECT_EQ(classOf(1.8, limits), 1U);
    EXPECT_EQ(classOf(10.8, limits), 5U);
    EXPECT_EQ(classOf(90, limits), 5U);
}

TEST(RoseTable, ARangeOverMidnightHoldsBothEnds) {
    Control control = dayControl();
    control.rules.hourRanges = {{23, 1}};
    RoseTable table(control.rules, 3600);
    for (int hour = 0; hour < 24; ++hour) table.add(control.begin + hour * secondsAnHour, {2, 0});
    EXPECT_EQ(table.roses()[3].total, 3);
}

TEST(RoseTable, TimesBeforeTheEpochCountToo) {
    Control control = dayControl();
    control.rules.hourRanges = {{1, 1}};
    RoseTable table(control.rules, 3600);
    table.add(momentOf(1950, 2, 28, 0, 0), {2, 0});
    EXPECT_EQ(table.roses()[1].total, 1);
    EXPECT_EQ(table.roses()[3].total, 1);
}

TEST(RoseTable, AStepUnderAnHourBelongsToTheHourThatItLiesIn) {
    Control control = dayControl();
    control.rules.hourRanges = {{1, 6}, {7, 12}, {13, 18}, {19, 0}};
    for (const int step : {1, 60, 600, 1000, 1800, 3599}) {
        RoseTable table(control.rules, step);
        table.add(control.begin, {2, 0});
        table.add(control.begin + 6 * secondsAnHour - step, {2, 0});
        EXPECT_EQ(table.roses()[3].total, 2) << step;
        table.add(control.begin + 6 * secondsAnHour, {2, 0});
        EXPECT_EQ(table.roses()[4].total, 1) << step;
        table.add(control.begin + 24 * secondsAnHour - step, {2, 0});
        EXPECT_EQ(table.roses()[6].total, 1) << step;
    }
    RoseTable halves(control.rules, 2400);  // a step that spans two hours counts for the later one
    halves.add(control.begin + 5 * secondsAnHour + 2400, {2, 0});
    EXPECT_EQ(halves.roses()[4].total, 1);
    for (const int step : {3600, 7200}) {  // longer steps count for the hour at their end
        RoseTable table(control.rules, step);
        table.add(control.begin + 6 * secondsAnHour + 1800 - step, {2, 0});
        EXPECT_EQ(table.roses()[3].total, 1) << step;
    }
}

TEST(FrqWriter, RosesOfNoStepAreLeftOut) {
    const Control control = dayControl();
    RoseTable table(control.rules, 3600);
    table.add(control.begin, {2, 90});
    table.add(control.begin + 3600, {0.1, missingValue});
    table.add(control.begin + 7200, {});
    RoseReport report = reportOf(control, table);
    report.title1 = "A\nstation";
    const std::string text = frqText(report);
    EXPECT_EQ(
        text.substr(0, text.find("\r\n\r\n")),
        "WIND.FRQ        2.3             Zephyrgraph FRQ File Format\r\n1 - Comment lines\r\n"
        "Frequencies of winds, 3600 seconds a step\r\n5 - Header lines\r\nA station\r\nAERMSFC a.sfc\r\n"
        "Height: 10.0 m\r\nWind Speed Classes (m/s): 0.5,0.5,1.8,3.3,5.4,8.5,10.8\r\n"
        "2004 2 29 0 0 2004 3 1 0 0 UTC-0500");
    EXPECT_NE(text.find("Winter\r\n"), std::string::npos);
    EXPECT_EQ(text.find("Spring\r\n"), std::string::npos);
    EXPECT_NE(text.find("  E :    0.0000%   50.0000%    0.0000%"), std::string::npos);
    EXPECT_NE(
        text.find("Calm Winds: 50.00%\r\nTotal Periods = 3; Valid Periods = 2; Calm Wind Periods = 1\r\n"),
        std::string::npos);
}

}  // namespace zg::tempoline
