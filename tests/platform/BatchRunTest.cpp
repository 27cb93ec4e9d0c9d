// The contract of a processor run, with stand-in processors: the batch file, the results and the marker.

#include <unistd.h>

#include "processing/ProcessorRun.h"
#include "tests/platform/BatchRunFixture.h"
#include "tests/support/TestHost.h"

namespace zg {
namespace {

using Texts = std::vector<std::string>;

TEST_F(BatchRun, RunsInTheOutputDirectoryAndLeavesTheMarkerAtItsEnd) {
    processor("cat \"$1\" > ONE.FRQ; pwd > where; echo listing > B_tempoline.lst\n");
    start();
    ASSERT_TRUE(comes("finished.txt"));
    EXPECT_EQ(directory_.read("out dir/ONE.FRQ"), "control");
    EXPECT_EQ(directory_.read("out dir/where"), out_ + "\n");
}

TEST_F(BatchRun, HasASessionOfItsOwn) {
    processor("cut -d ' ' -f 6 /proc/$$/stat > session; echo listing > B_tempoline.lst\n");
    start();
    ASSERT_TRUE(comes("finished.txt"));
    const int session = std::stoi(directory_.read("out dir/session"));
    EXPECT_GT(session, 1);
    EXPECT_NE(session, getsid(0));
}

TEST_F(BatchRun, AHangingProcessorDoesNotHoldTheProgramUp) {
    processor("touch ran; while [ ! -e go ]; do sleep 0.05; done; echo listing > B_tempoline.lst\n");
    start();
    ASSERT_TRUE(comes("ran"));
    EXPECT_FALSE(isThere("finished.txt"));
    directory_.write("out dir/go", "");
    EXPECT_TRUE(comes("finished.txt"));
}

TEST_F(BatchRun, TheMarkerIsTheListing) {
    processor("echo listing > B_tempoline.lst\n");
    directory_.write("out dir/finished.txt", "old");
    carryOut();
    EXPECT_EQ(directory_.read("out dir/finished.txt"), "listing\n");
}

TEST_F(BatchRun, AFailureAfterTheListingStillLeavesTheMarker) {
    processor("echo listing > B_tempoline.lst; exit 3\n");
    carryOut();
    EXPECT_TRUE(isThere("finished.txt"));
}

TEST_F(BatchRun, ACrashBeforeTheListingLeavesNone) {
    processor("touch ran; kill -SEGV $$\n");
    carryOut();
    EXPECT_TRUE(isThere("ran"));
    EXPECT_FALSE(isThere("finished.txt"));
}

TEST_F(BatchRun, ACrashAfterTheListingLeavesTheMarker) {
    processor("echo listing > B_tempoline.lst; kill -SEGV $$\n");
    carryOut();
    EXPECT_TRUE(isThere("finished.txt"));
}

TEST_F(BatchRun, AMissingProcessorLeavesNone) {
    carryOut();
    EXPECT_FALSE(isThere("finished.txt"));
}

TEST_F(BatchRun, AListingOfAnEarlierRunMakesNoMarker) {
    directory_.write("out dir/B_tempoline.lst", "of an earlier run");
    carryOut();
    EXPECT_FALSE(isThere("finished.txt"))
        << "no processor: the rose of that run would be shown as this one's";
    processor("kill -KILL $$\n");
    carryOut();
    EXPECT_FALSE(isThere("finished.txt"));
    processor("echo another > new; mv new B_tempoline.lst\n");
    carryOut();
    EXPECT_EQ(directory_.read("out dir/finished.txt"), "another\n");
    std::filesystem::remove(out_ + "/finished.txt");
    processor("echo 'in its place' > B_tempoline.lst\n");
    carryOut();
    EXPECT_EQ(directory_.read("out dir/finished.txt"), "in its place\n");
}

TEST_F(BatchRun, ABaseWithABlankReachesTheProcessorInPiecesAndLeavesNoMarker) {
    processor("printf '%s|' \"$@\" > words; echo listing > 'my B_tempoline.lst'\n");
    carryOut("my B");
    EXPECT_EQ(directory_.read("out dir/words"), "my|B_tempoline.inp|");
    EXPECT_FALSE(isThere("finished.txt"));
}

TEST_F(BatchRun, NothingInANameMeansAnythingToTheShell) {
    processor("printf '%s|' \"$@\" > words; echo listing > \"${1%.inp}.lst\"\n");
    carryOut("$(touch${IFS}hacked);B'&");
    EXPECT_TRUE(isThere("finished.txt"));
    EXPECT_FALSE(isThere("hacked"));
    EXPECT_EQ(directory_.read("out dir/words"), "$(touch${IFS}hacked);B'&_tempoline.inp|");
}

TEST_F(BatchRun, AProgramForWindowsRunsThroughWineWhereThatIsInstalled) {
    executable("program's dir/tempoline.exe", "MZ and more");
    std::filesystem::create_directory(directory_.file("bin"));
    executable("bin/wine", "#!/bin/sh\nprintf '%s|' \"$@\" > words; echo listing > B_tempoline.lst\n");
    const QByteArray path = qgetenv("PATH");
    qputenv("PATH", QByteArray::fromStdString(directory_.file("bin") + ":") + path);
    carryOut();
    qputenv("PATH", path);
    EXPECT_EQ(directory_.read("out dir/words"), programs_ + "/tempoline.exe|B_tempoline.inp|");
    EXPECT_TRUE(isThere("finished.txt"));
}

TEST_F(BatchRun, TheWholeRunPlotsTheOutputsThatWereMade) {
    processor("touch ONE.FRQ three.frq; echo listing > B_tempoline.lst\n");
    Texts loaded;
    Texts statuses;
    TestHost host;
    host.onPump = [] { QTest::qWait(1); };
    RunHooks hooks;
    hooks.plan = [this] {
        RunPlan plan;
        plan.directory = out_ + "/";
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
    runProcessor(host, starter_, RunForm::Stations, hooks);
    EXPECT_EQ(loaded, (Texts{"ONE.FRQ", "three.frq"}));
    EXPECT_EQ(statuses, (Texts{"Error processing Station 2", "Finished"}));
}

TEST_F(BatchRun, EveryByteOfANameReachesTheProcessorAsItIs) {
    std::string base = "100%d\\n'";
    for (int byte = 0x80; byte <= 0xFF; ++byte) base += static_cast<char>(byte);
    out_ += " " + base;
    std::filesystem::create_directory(out_);
    directory_.write("list", base + "_tempoline.lst");
    processor("printf '%s|' \"$@\" > words; echo listing > \"$(cat ../list)\"\n");
    start(base);
    ASSERT_TRUE(comes("finished.txt"));
    EXPECT_EQ(readWholeFile(out_ + "/words"), base + "_tempoline.inp|");
}

TEST(BatchScript, TheShellOfWindowsGetsThePathInQuotesWithinQuotes) {
    EXPECT_EQ(shellArguments("D:\\my data\\run_tempoline.bat"), "/c \"\"D:\\my data\\run_tempoline.bat\"\"");
    EXPECT_EQ(shellArguments("C:\\R&D (x86)\\open_file.bat"), "/c \"\"C:\\R&D (x86)\\open_file.bat\"\"");
}

TEST(BatchScript, RunsInATerminalWhereThereIsOne) {
    EXPECT_EQ(scriptCommand("cd 'x'\n", ""), (Texts{"sh", "-c", "cd 'x'\n"}));
    EXPECT_EQ(scriptCommand("cd 'x'\n", "/bin/term"),
              (Texts{"/bin/term", "-e", "sh", "-c",
                     "cd 'x'\nprintf 'Press Enter to close this window. '; read -r key\n"}));
}

}  // namespace
}  // namespace zg
