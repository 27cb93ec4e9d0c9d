#include "tempoline/TabFile.h"

#include <gtest/gtest.h>

#include "tests/tempoline/TempolineSupport.h"

namespace zg::tempoline {

RoseReport reportOfDay(int hours) {
    const Control control = dayControl();
    RoseTable table(control.rules, 3600);
    for (int hour = 0; hour < hours; ++hour)
        table.add(control.begin + hour * secondsAnHour, {0.3 * hour, 15.0 * hour});
    RoseReport report = reportOf(control, table);
    report.runs = {{control.begin, control.end, "AERMSFC a.sfc, station 1"}};
    return report;
}

TEST(TabFile, ReadsWhatItWrote) {
    const RoseReport report = reportOfDay(24);
    const std::string text = tabText(report);
    const RoseReport read = readTab(text, "a.tab");
    EXPECT_EQ(tabText(read), text);
    EXPECT_EQ(read.rules.classLimits, report.rules.classLimits);
    EXPECT_EQ(read.begin, report.begin);
    EXPECT_EQ(read.runs[0].what, "AERMSFC a.sfc, station 1");
    ASSERT_EQ(read.roses.size(), report.roses.size());
    for (std::size_t i = 0; i < read.roses.size(); ++i) EXPECT_EQ(read.roses[i].cells, report.roses[i].cells);
}

TEST(TabFile, EveryCutIsRefused) {
    const std::string text = tabText(reportOfDay(24));
    for (std::size_t size = 0; size < text.size(); ++size)
        EXPECT_NE(failureOf([&] { readTab(std::string_view(text).substr(0, size), "a.tab"); }), "");
}

TEST(TabFile, AChangedCountIsNoticed) {
    std::string text = tabText(reportOfDay(24));
    const std::size_t place = text.find("  1", text.find("class 6"));
    text[place + 2] = '2';
    EXPECT_NE(failureOf([&] { readTab(text, "a.tab"); }).find("do not sum to its last"), std::string::npos);
}

TEST(TabFile, LimitsMayBeEqualOrBelowZeroButNotFall) {
    const std::string text = tabText(reportOfDay(24));
    const auto withLimits = [&](const std::string& limits) {
        std::string other = text;
        return other.replace(other.find("0.5,1.8,3.3,5.4,8.5,10.8"), 24, limits);
    };
    EXPECT_EQ(readTab(withLimits("-1,1,1,2,3,3"), "a.tab").rules.classLimits,
              (std::array<double, classCount>{-1, 1, 1, 2, 3, 3}));
    for (const char* const limits : {"0.5,1.8,1.7,5.4,8.5,10.8", "0.5,nan,3.3,5.4,8.5,10.8"})
        EXPECT_EQ(failureOf([&] { readTab(withLimits(limits), "a.tab"); }),
                  "a.tab:8: Limits: six speeds that do not fall are needed");
}

TEST(TabFile, OtherTextsAreRefused) {
    EXPECT_EQ(failureOf([] { readTab("x\n", "a.tab"); }),
              "a.tab:1: the first line is not that of a TAB file of version 1.0");
    EXPECT_EQ(failureOf([] { readTab("", "a.tab"); }), "a.tab:1: the file ends too early");
}

}  // namespace zg::tempoline
