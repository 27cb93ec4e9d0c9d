#include "processing/RunReasons.h"

#include <gtest/gtest.h>

#include "tests/support/TempDirectory.h"

namespace zg {
namespace {

TEST(ForeseenTrouble, IsABlankInTheNameOrAMissingProcessor) {
    const TempDirectory directory;
    EXPECT_EQ(foreseenTrouble("B", directory.path()), "tempoline.exe is missing in " + directory.path());
    directory.write("tempoline.exe", "");
    EXPECT_EQ(foreseenTrouble("B", directory.path()), "");
    EXPECT_EQ(
        foreseenTrouble("my B", directory.path()),
        "a blank in the name: the processor cannot find its control file; rename the input or the station");
    EXPECT_EQ(foreseenTrouble("my B", "/no/such/place"), foreseenTrouble("my B", directory.path()))
        << "even a processor that is there could not work";
}

TEST(ForeseenTrouble, IsASignThatSplitsACommandOfTheShellOfWindows) {
    const TempDirectory directory;
    directory.write("tempoline.exe", "");
    for (const std::string sign : {";", ",", "=", "+"}) {
        EXPECT_EQ(foreseenTrouble("a" + sign + "b", directory.path(), '\\'),
                  "a " + sign +
                      " in the name: the command shell cannot copy the processor's listing; rename the input "
                      "or the station");
        EXPECT_EQ(foreseenTrouble("a" + sign + "b", directory.path(), '/'), "");
    }
    EXPECT_EQ(foreseenTrouble("a-b_(c)[d]{e}'f'~#@$.g", directory.path(), '\\'), "");
}

TEST(ForeseenTrouble, SaysWhereTheBlankInTheNameComesFrom) {
    const auto remedyOf = [](const std::string& base, const std::string& input, const std::string& height) {
        ControlFile control;
        control.type = InputKind::AermSfc;
        control.base = base;
        control.inputFiles = {std::string("some where") + pathSeparator + input};
        control.outputs = {{"1", base, "", "0, 0, 0", height}};
        const std::string text = foreseenTrouble(planOf("/out/", control));
        const std::string start = "a blank in the name: the processor cannot find its control file; ";
        return text.starts_with(start) ? text.substr(start.size()) : text;
    };
    EXPECT_EQ(remedyOf("my data_AERMETSFC_1988_10m", "my data.sfc", "10"), "rename the input");
    EXPECT_EQ(remedyOf("VENTOS_my data2005", "my data.dat", "10"), "rename the input");
    EXPECT_EQ(remedyOf("New York_AERMETSFC_1988_10m", "data.sfc", "10"),
              "rename the station in Station_Data.csv");
    EXPECT_EQ(remedyOf("New York_AERMETSFC_1988_10m", "my data.sfc", "10"),
              "rename the station in Station_Data.csv");
    EXPECT_EQ(remedyOf("data_AERMETSFC_1988_1 0m", "data.sfc", "1 0"), "take the blank out of the height");
    ControlFile plain;
    plain.base = "B";
    RunPlan plan = planOf("/out/", plain);
    plan.programDirectory = "/no/such/place";
    EXPECT_EQ(foreseenTrouble(plan), "tempoline.exe is missing in /no/such/place");
}

TEST(LastLineOfListing, IsTheLastOneWithAText) {
    const TempDirectory directory;
    EXPECT_EQ(lastLineOfListing(directory.file("none.lst")), "");
    EXPECT_EQ(lastLineOfListing(directory.write("a.lst", "")), "");
    EXPECT_EQ(lastLineOfListing(directory.write("b.lst", "one\r\n\r\nERROR: two\r\n  \r\n\r\n")),
              "ERROR: two");
    EXPECT_EQ(lastLineOfListing(directory.write("c.lst", "one\n  two  ")), "two");
    directory.write("D.LST", "in capitals\n");
    EXPECT_EQ(lastLineOfListing(directory.file("d.lst")), "in capitals");
    EXPECT_EQ(lastLineOfListing(directory.path()), "") << "a directory has no lines";
}

TEST(WarningsOfListing, AreTheFirstThreeAndHowManyMore) {
    const TempDirectory directory;
    EXPECT_EQ(warningsOfListing(directory.file("none.lst")), "");
    EXPECT_EQ(warningsOfListing(directory.path()), "");
    const std::string three =
        "WARNING: one\r\n  no WARNING: here\r\nNOTE: x\r\nWARNING: two\r\nWARNING: 3\r\n";
    EXPECT_EQ(warningsOfListing(directory.write("a.lst", three + "RUN COMPLETED\r\n")),
              "WARNING: one\nWARNING: two\nWARNING: 3");
    EXPECT_EQ(warningsOfListing(directory.write("b.lst", three + "WARNING: 4\r\nWARNING: 5\r\n")),
              "WARNING: one\nWARNING: two\nWARNING: 3\n2 more in the listing");
    EXPECT_EQ(warningsOfListing(directory.write("c.lst", "RUN COMPLETED\r\n")), "");
}

}  // namespace
}  // namespace zg
