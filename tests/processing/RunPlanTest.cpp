// A run as data: what a program without a window does with it.

#include "processing/RunPlan.h"

#include <gtest/gtest.h>

#include <filesystem>

#include "tests/support/Raises.h"
#include "tests/support/TempDirectory.h"

namespace zg {
namespace {

ControlFile controlOf(InputKind type) {
    ControlFile control;
    control.type = type;
    control.base = "B";
    control.inputFiles = {"in.dat"};
    setPeriod(control, addSeconds(makeDate(2005, 3, 7), 6 * 3600 + 1815), makeDate(2005, 12, 31));
    return control;
}

std::vector<std::string> namesOf(const RunPlan& plan) {
    std::vector<std::string> names;
    for (const RunOutput& output : plan.outputs) names.push_back(output.name);
    return names;
}

TEST(RunPlan, OfAControlFileHasItsOutputsInOrder) {
    ControlFile control = controlOf(InputKind::Surf);
    control.outputs = {{"2", "two", "", "1002, 0, 0", "10"}, {"5", "five", "", "1005, 0, 0", "10"}};
    control.roseName = "of series only";
    const RunPlan plan = planOf("/out/", control);
    EXPECT_EQ(namesOf(plan), (std::vector<std::string>{"two", "five"}));
    EXPECT_EQ(plan.firstName, "two");
    EXPECT_EQ(plan.lastName, "");
    EXPECT_EQ(plan.controlName(), "B_tempoline.inp");
    EXPECT_EQ(plan.listingPath(), "/out/B_tempoline.lst");
    EXPECT_EQ(planOf("/out/", controlOf(InputKind::Up)).firstName, "") << "no height";
}

TEST(RunPlan, OfANameThatLeadsElsewhereIsRefused) {
    ControlFile control = controlOf(InputKind::Up);
    for (const char* base : {"../x", "a/b", "/a"}) {
        control.base = base;
        EXPECT_RAISES(52, std::string("Bad file name or number: \"") + base + "\" is no plain file name",
                      (needBatchNames(planOf("/out/", control)), 0));
    }
    control.base = std::string(255 - std::string("_tempoline.inp").size() + 1, 'x');
    EXPECT_RAISES(52, "Bad file name or number: \"" + control.base + "\" is too long for a file",
                  (needBatchNames(planOf("/out/", control)), 0));
    control.base.pop_back();
    needBatchNames(planOf("/out/", control));
    for (const char* base : {".", "..", "a b", "CON", "[x]", "a,b", "~"}) {
        control.base = base;
        needBatchNames(planOf("/out/", control));
    }
}

TEST(RunPlan, OfASeriesHasOneRose) {
    ControlFile control = controlOf(InputKind::Tsf);
    control.roseName = "rose";
    EXPECT_EQ(namesOf(planOf("/out/", control)), std::vector<std::string>{"rose"});
}

TEST(RunPlan, KnowsTheProcessorOfTheProgramThatMadeIt) {
    applicationDirectory = "/opt/prog";
    const RunPlan plan = planOf("/out/", controlOf(InputKind::Surf));
    applicationDirectory = "/elsewhere";
    EXPECT_EQ(plan.processorPath(), std::string("/opt/prog") + pathSeparator + "tempoline.exe");
    EXPECT_EQ(plan.batch().programDirectory, "/opt/prog");
    EXPECT_EQ(plan.batch().path(), "/out/run_tempoline.bat");
}

TEST(RunPlan, APeriodHasHoursAndTheSecondsWithinThem) {
    const ControlFile control = controlOf(InputKind::Surf);
    EXPECT_EQ(
        control.IBYR + " " + control.IBMO + " " + control.IBDY + " " + control.IBHR + " " + control.IBSEC,
        "2005 3 7 6 1815");
    EXPECT_EQ(
        control.IEYR + " " + control.IEMO + " " + control.IEDY + " " + control.IEHR + " " + control.IESEC,
        "2005 12 31 0 0");
    EXPECT_EQ(periodInName(control), "20050307-20051231");
}

TEST(RunPlan, TheBaseOfAFileLosesFourCharactersWhateverTheyAre) {
    const std::string data = withSeparator("/da.ta");
    EXPECT_EQ(fileBaseOf(data + "wind.dat"), "wind");
    EXPECT_EQ(fileBaseOf(data + "wind.data"), "wind.");
    EXPECT_EQ(fileBaseOf(data + ".sfc"), "");
    EXPECT_RAISES(5, "Invalid procedure call or argument", fileBaseOf(data + "abc"));
}

TEST(RunPlan, ItsFilesAreWrittenLookedForAndRemovedOneByOne) {
    const TempDirectory out;
    ControlFile control = controlOf(InputKind::Surf);
    control.outputs = {{"1", " one ", "", "1001, 0, 0", "10"}};
    const RunPlan plan = planOf(withSeparator(out.path()), control);
    writeControlFile(plan);
    EXPECT_EQ(out.read("B_tempoline.inp"), controlFileBytes(plan.control));
    writeBatchFile(plan);
    EXPECT_TRUE(hasOnlyLines(plan.batch().path(), batchLines(plan.batch())));
    EXPECT_EQ(resultOf(plan, plan.outputs[0]), "");
    out.write("ONE.FRQ", "");
    EXPECT_EQ(resultOf(plan, plan.outputs[0]), out.file("ONE.FRQ")) << "by its name on the disk";
    EXPECT_FALSE(hasMarker(plan));
    for (const char* name : {"finished.txt", "Finished.TXT"}) out.write(name, "");
    EXPECT_TRUE(hasMarker(plan));
    removeMarker(plan);
    EXPECT_FALSE(hasMarker(plan));
}

TEST(RunPlan, NamesThatNoBatchFileHoldsAreRefused) {
    ControlFile control = controlOf(InputKind::Surf);
    control.base = "x\ny";
    EXPECT_RAISES(52, "Bad file name or number: \"x<LF>y\" has a line end in it",
                  needBatchNames(planOf("/out/", control)));
}

}  // namespace
}  // namespace zg
