// The contract of a processor run with stand-in processors: the batch file, the results and the marker.

#include <gtest/gtest.h>
#include <unistd.h>

#include <QProcess>
#include <QTest>
#include <filesystem>

#include "base/Lines.h"
#include "base/Paths.h"
#include "platform/BatchScript.h"
#include "platform/BatchStarter.h"
#include "platform/QtText.h"
#include "processing/ProcessorRun.h"
#include "tests/support/TempDirectory.h"
#include "tests/support/TestHost.h"

namespace zg {
namespace {

using Texts = std::vector<std::string>;

constexpr int longEnoughMs = 60'000;

/// A run's directories, both with characters that a shell would read, and a processor that is a script.
class BatchRun : public ::testing::Test {
 protected:
    void SetUp() override {
        std::filesystem::create_directories(out_);
        std::filesystem::create_directories(programs_);
        directory_.write("out dir/B_tempoline.inp", "control");
    }
    void executable(const std::string& name, const std::string& content) {
        std::filesystem::permissions(directory_.write(name, content), std::filesystem::perms::owner_all);
    }
    void processor(const std::string& script) {
        executable("program's dir/tempoline.exe", "#!/bin/sh\n" + script);
    }
    Texts lines(const std::string& base) const { return batchLines(out_ + "/", base, programs_); }
    void start(const std::string& base = "B") {
        LineWriter file(out_ + "/run_tempoline.bat");
        for (const std::string& line : lines(base)) file.writeLine(line);
        file.close();
        BatchStarter().start(out_ + "/run_tempoline.bat", WindowStyle::NormalFocus);
    }
    /// Carries the lines out to their end.
    void carryOut(const std::string& base = "B") {
        const QStringList words = {QStringLiteral("-c"), fileName(asShellScript(lines(base)))};
        ASSERT_GE(QProcess::execute(QStringLiteral("sh"), words), 0);
    }
    bool isThere(const std::string& name) const { return fileExists(out_ + "/" + name); }
    bool comes(const std::string& name) {
        return QTest::qWaitFor([&] { return isThere(name); }, longEnoughMs);
    }

    TempDirectory directory_;
    std::string out_ = directory_.file("out dir");
    std::string programs_ = directory_.file("program's dir");
};

TEST_F(BatchRun, RunsInTheOutputDirectoryAndLeavesTheMarkerAtItsEnd) {
    processor("cat \"$1\" > ONE.FRQ; pwd > where; echo listing > B_tempoline.lst\n");
    start();
    ASSERT_TRUE(comes("finished.txt"));
    EXPECT_EQ(directory_.read("out dir/ONE.FRQ"), "control");
    EXPECT_EQ(directory_.read("out dir/where"), out_ + "\n");
}

TEST_F(BatchRun, HasAProcessGroupOfItsOwn) {
    processor("cut -d ' ' -f 5 /proc/$$/stat > group; echo listing > B_tempoline.lst\n");
    start();
    ASSERT_TRUE(comes("finished.txt"));
    const int group = std::stoi(directory_.read("out dir/group"));
    EXPECT_GT(group, 1);
    EXPECT_NE(group, getpgrp());
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
    directory_.write("out dir/B_tempoline.lst", "of an earlier run");
    carryOut();
    EXPECT_TRUE(isThere("finished.txt")) << "every line runs whatever became of the one before it";
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
    applicationDirectory = programs_;
    Texts loaded;
    Texts statuses;
    TestHost host;
    host.onPump = [] { QTest::qWait(1); };
    RunHooks hooks;
    hooks.readValues = [] {};
    hooks.base = [] { return std::string("B"); };
    hooks.outputDirectory = [this] { return out_ + "/"; };
    hooks.outputs = [] { return std::vector<RunOutput>{{"one", "1"}, {"two", "2"}, {"three", "3"}}; };
    hooks.firstName = [] { return std::string("one"); };
    hooks.writeControlFile = [] {};
    hooks.showName = [](const std::string&) {};
    hooks.setStatus = [&](const std::string& text) {
        if (!text.starts_with("Running.")) statuses.push_back(text);
    };
    hooks.setBusy = [](bool) {};
    hooks.load = [&](const std::string& path) { loaded.push_back(FileNameOf(path)); };
    hooks.showExit = [] {};
    hooks.keepTimeZone = [] {};
    hooks.abandoned = [&] { return host.pumps > longEnoughMs; };
    BatchStarter starter;
    runProcessor(host, starter, RunForm::Stations, hooks);
    EXPECT_EQ(loaded, (Texts{"ONE.FRQ", "three.frq"}));
    EXPECT_EQ(statuses, (Texts{"Error processing Station 2", "Finished"}));
}

TEST(BatchScript, DriveLinesAndPauseDoNothing) { EXPECT_EQ(asShellScript({"D:", "pause", ""}), ""); }

TEST(BatchScript, StartsInASessionOfItsOwnAndInATerminalWhereThereIsOne) {
    EXPECT_EQ(scriptCommand("cd 'x'\n", ""), (Texts{"setsid", "sh", "-c", "cd 'x'\n"}));
    EXPECT_EQ(scriptCommand("cd 'x'\n", "/bin/term"),
              (Texts{"setsid", "/bin/term", "-e", "sh", "-c",
                     "cd 'x'\nprintf 'Press Enter to close this window. '; read -r key\n"}));
}

}  // namespace
}  // namespace zg
