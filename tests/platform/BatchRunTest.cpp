// The contract of a processor run, with stand-in processors: the batch file, the results and the marker.

#include "processing/ProcessorRun.h"
#include "tests/platform/BatchRunFixture.h"
#include "tests/support/FakeStarter.h"
#include "tests/support/Places.h"
#include "tests/support/TestHost.h"

namespace zg {
namespace {

using Names = std::vector<std::string>;

TEST_F(BatchRun, RunsInTheOutputDirectoryAndLeavesTheMarkerAtItsEnd) {
    standIn("copy B_tempoline.inp ONE.FRQ\nplace where\nlisting\n");
    carryOut();
    ASSERT_TRUE(isThere("finished.txt"));
    EXPECT_EQ(directory_.read("out dir/ONE.FRQ"), "control");
    EXPECT_EQ(directory_.read("out dir/where"), out_);
}

TEST_F(BatchRun, TheMarkerIsTheListing) {
    standIn("listing of this run\n");
    directory_.write("out dir/finished.txt", "old");
    carryOut();
    EXPECT_EQ(directory_.read("out dir/finished.txt"), "of this run\n");
}

TEST_F(BatchRun, AFailureAfterTheListingStillLeavesTheMarker) {
    standIn("listing\nexit 3\n");
    carryOut();
    EXPECT_TRUE(isThere("finished.txt"));
}

TEST_F(BatchRun, ACrashBeforeTheListingLeavesNone) {
    standIn("write ran\ncrash\n");
    carryOut();
    EXPECT_TRUE(isThere("ran"));
    EXPECT_FALSE(isThere("finished.txt"));
}

TEST_F(BatchRun, ACrashAfterTheListingLeavesTheMarker) {
    standIn("listing\ncrash\n");
    carryOut();
    EXPECT_TRUE(isThere("finished.txt"));
}

TEST_F(BatchRun, AMissingProcessorLeavesNone) {
    carryOut();
    EXPECT_FALSE(isThere("finished.txt"));
}

TEST_F(BatchRun, ABaseWithABlankReachesTheProcessorInPiecesAndLeavesNoMarker) {
    standIn("words words\ncopy B_tempoline.inp my B_tempoline.lst\n");
    const std::string told = carryOut("my B");
    EXPECT_EQ(directory_.read("out dir/words"), "my|B_tempoline.inp|");
    EXPECT_TRUE(isThere("my B_tempoline.lst"));
    EXPECT_FALSE(isThere("finished.txt"));
    if (onWindows) return;  // its shell tells it in its own words
    EXPECT_TRUE(told.starts_with("a blank in the name: the processor cannot find its control file; "))
        << told;
}

TEST_F(BatchRun, NothingInANameMeansAnythingToTheShell) {
    standIn("words words\nlisting\n");
    const std::string base = onWindows ? "$(B)'`[1]{2}~#@" : "$(touch${IFS}hacked);B'&";
    carryOut(base);
    EXPECT_TRUE(isThere("finished.txt"));
    EXPECT_FALSE(isThere("hacked"));
    EXPECT_EQ(directory_.read("out dir/words"), base + "_tempoline.inp|");
}

TEST_F(BatchRun, TheWholeRunPlotsTheOutputsThatWereMade) {
    standIn("write ONE.FRQ\nwrite three.frq\nlisting\n");
    Names loaded;
    Names statuses;
    TestHost host;
    FakeStarter starter;
    starter.onRun = [this](const RunBatch& run) {
        // On Windows its console would wait for a person.
        if (onWindows)
            carriedOut(run);
        else
            starter_.startRun(run);
    };
    host.onPump = [] { QTest::qWait(1); };
    RunHooks hooks;
    hooks.plan = [this] {
        RunPlan plan;
        plan.directory = out_ + pathSeparator;
        plan.control.base = "B";
        plan.outputs = {{"one", "1"}, {"two", "2"}, {"three", "3"}};
        return plan;
    };
    hooks.showName = [](const std::string&) {};
    hooks.setStatus = [&](const std::string& text) {
        if (!text.starts_with("Running.")) statuses.push_back(text);
    };
    hooks.setBusy = [](bool) {};
    hooks.load = [&](const std::string& path) { loaded.push_back(FileNameOf(path)); };
    hooks.showExit = [] {};
    hooks.keepTimeZone = [] {};
    hooks.abandoned = [&] { return host.pumps > longEnoughMs; };
    runProcessor(host, starter, RunForm::Stations, hooks);
    EXPECT_EQ(loaded, (Names{"ONE.FRQ", "three.frq"}));
    EXPECT_EQ(statuses, (Names{"Error processing Station 2", "Finished"}));
}

TEST(BatchScript, TheShellOfWindowsGetsThePathInQuotesWithinQuotes) {
    EXPECT_EQ(shellArguments("D:\\my data\\run_tempoline.bat"), "/c \"\"D:\\my data\\run_tempoline.bat\"\"");
    EXPECT_EQ(shellArguments("C:\\R&D (x86)\\open_file.bat"), "/c \"\"C:\\R&D (x86)\\open_file.bat\"\"");
}

}  // namespace
}  // namespace zg
