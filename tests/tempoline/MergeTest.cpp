#include "tempoline/Merge.h"

#include <gtest/gtest.h>

#include "tempoline/FrqWriter.h"
#include "tempoline/TabFile.h"
#include "tests/tempoline/TempolineSupport.h"

namespace zg::tempoline {

namespace {

RoseReport partOf(int day, int hours) {
    Control control = dayControl();
    control.begin += day * secondsADay;
    control.end += day * secondsADay;
    RoseTable table(control.rules, 3600);
    for (int hour = 0; hour < hours; ++hour)
        table.add(control.begin + hour * secondsAnHour, {0.4 * hour, 40.0});
    RoseReport report = reportOf(control, table);
    report.title1 = "One";
    report.title2 = "SURF a";
    report.zone = "UTC+0000";
    report.runs = {{control.begin, control.end, "SURF a, station 1"}};
    return report;
}

}  // namespace

TEST(Merge, AddsEveryCount) {
    RoseReport sum = partOf(0, 24);
    addCounts(sum, partOf(1, 10), "a", "b");
    EXPECT_EQ(sum.roses[0].total, 34);
    EXPECT_EQ(sum.roses[0].calm, 4);
    EXPECT_EQ(sum.roses[2].total, 10);
    EXPECT_EQ(sum.end - sum.begin, 2 * secondsADay);
    EXPECT_EQ(sum.title1, "One");
    EXPECT_EQ(sum.runs.size(), 2U);
}

TEST(Merge, RefusesCountsOfOtherRules) {
    const RoseReport first = partOf(0, 24);
    const auto refused = [&](auto change) {
        RoseReport sum = first;
        RoseReport part = partOf(1, 24);
        change(part);
        return failureOf([&] { addCounts(sum, part, "a.tab", "b.tab"); });
    };
    EXPECT_EQ(refused([](RoseReport& part) { part.step = 1800; }),
              "b.tab: the seconds of a step differ from those of a.tab");
    EXPECT_EQ(refused([](RoseReport& part) { part.zone = "UTC-0500"; }),
              "b.tab: the hours of the zone differ from those of a.tab");
    EXPECT_EQ(refused([](RoseReport& part) { part.height = "20.0 m"; }),
              "b.tab: the metres of the height differ from those of a.tab");
    EXPECT_EQ(refused([](RoseReport& part) { part.rules.classLimits[0] = 0.4; }),
              "b.tab: the limits of the classes differ from those of a.tab");
    EXPECT_EQ(refused([](RoseReport& part) { part.rules.seasonOfMonth[0] = 2; }),
              "b.tab: the months of the seasons differ from those of a.tab");
    EXPECT_EQ(refused([](RoseReport& part) { part.roses.pop_back(); }),
              "b.tab: the roses differ from those of a.tab");
    EXPECT_EQ(refused([](RoseReport& part) { part.roses[1].title = "Wet"; }),
              "b.tab: the roses differ from those of a.tab");
}

TEST(Merge, TheSameWindsAreNotCountedTwice) {
    EXPECT_EQ(failureOf([] {
                  needDistinctRuns({{0, 10, "a"}, {0, 10, "b"}, {9, 20, "a"}});
              }),
              "the same winds would be counted twice: a from 1970-01-01 00:00:09 to 1970-01-01 00:00:10");
    needDistinctRuns({{0, 10, "a"}, {0, 10, "b"}, {10, 20, "a"}});
}

TEST(Merge, ANameThatCannotBeTakenEndsItBeforeAnyFileIsRead) {
    const InDirectory inside;
    inside.directory.write("sum.tab", "old");
    std::filesystem::create_directory("sum.frq");
    EXPECT_EQ(failureOf([] { mergeTabs({"none.tab"}, "sum"); }),
              "sum.frq: cannot be written: Is a directory");
    EXPECT_EQ(inside.directory.read("sum.previous.tab"), "old");
}

TEST(Merge, WritesBothFilesOrNone) {
    const InDirectory inside;
    inside.directory.write("a.tab", tabText(partOf(0, 24)));
    inside.directory.write("b.tab", tabText(partOf(1, 24)));
    mergeTabs({"a.tab", "b.tab"}, "sum");
    RoseReport sum = partOf(0, 24);
    addCounts(sum, partOf(1, 24), "a", "b");
    EXPECT_EQ(inside.directory.read("sum.frq"), frqText(sum));
    EXPECT_EQ(inside.directory.read("sum.tab"), tabText(sum));
    EXPECT_EQ(failureOf([] {
                  mergeTabs({"a.tab", "none.tab"}, "other");
              }),
              "none.tab: No such file or directory");
    EXPECT_FALSE(std::filesystem::exists("other.tab"));
}

}  // namespace zg::tempoline
