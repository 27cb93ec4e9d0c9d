// The contract of a processor run with stand-in processors: the batch file, the results and the marker.

#include <gtest/gtest.h>

#include <QCoreApplication>
#include <QElapsedTimer>
#include <QThread>
#include <filesystem>

#include "base/Lines.h"
#include "base/Paths.h"
#include "platform/BatchScript.h"
#include "platform/BatchStarter.h"
#include "processing/ProcessorRun.h"
#include "tests/support/TempDirectory.h"

namespace zg {
namespace {

class BatchRunOfAProcessor : public ::testing::Test {
 protected:
    void SetUp() override {
        std::filesystem::create_directories(out_);
        std::filesystem::create_directories(programs_);
        directory_.write("out dir/B_tempoline.inp", "control");
    }
    /// A processor that is this script.
    void processor(const std::string& script) {
        const std::string path = directory_.write("program's dir/tempoline.exe", "#!/bin/sh\n" + script);
        std::filesystem::permissions(path, std::filesystem::perms::owner_all);
    }
    void start(const std::string& base = "B") {
        LineWriter file(out_ + "/run_tempoline.bat");
        for (const std::string& line : batchLines(out_ + "/", base, programs_)) file.writeLine(line);
        file.close();
        BatchStarter().start(out_ + "/run_tempoline.bat", WindowStyle::NormalFocus);
    }
    /// Waits until the file is there, or not for longer than so many milliseconds.
    bool comes(const std::string& name, int ms = 5000) {
        QElapsedTimer timer;
        timer.start();
        while (!fileExists(out_ + "/" + name)) {
            if (timer.elapsed() > ms) return false;
            QThread::msleep(10);
        }
        return true;
    }

    TempDirectory directory_;
    std::string out_ = directory_.file("out dir");
    std::string programs_ = directory_.file("program's dir");
};

TEST_F(BatchRunOfAProcessor, RunsInTheOutputDirectoryAndLeavesTheMarkerAtItsEnd) {
    processor("cat \"$1\" > ONE.FRQ; pwd > where; echo listing > B_tempoline.lst\n");
    start();
    ASSERT_TRUE(comes("finished.txt"));
    EXPECT_EQ(directory_.read("out dir/ONE.FRQ"), "control");
    EXPECT_EQ(directory_.read("out dir/where"), out_ + "\n");
    EXPECT_EQ(directory_.read("out dir/finished.txt"), "listing\n");
}

TEST_F(BatchRunOfAProcessor, AFailureAfterTheListingStillLeavesTheMarker) {
    processor("echo listing > B_tempoline.lst; exit 3\n");
    start();
    EXPECT_TRUE(comes("finished.txt"));
}

TEST_F(BatchRunOfAProcessor, ACrashBeforeTheListingLeavesNone) {
    processor("touch ran; kill -SEGV $$\n");
    start();
    ASSERT_TRUE(comes("ran"));
    EXPECT_FALSE(comes("finished.txt", 300));
}

TEST_F(BatchRunOfAProcessor, AMissingProcessorLeavesNone) {
    start();
    EXPECT_FALSE(comes("finished.txt", 300));
}

TEST_F(BatchRunOfAProcessor, AHangingProcessorDoesNotHoldTheProgramUp) {
    processor("touch ran; sleep 2; echo listing > B_tempoline.lst\n");
    QElapsedTimer timer;
    timer.start();
    start();
    EXPECT_LT(timer.elapsed(), 1500);
    ASSERT_TRUE(comes("ran"));
    EXPECT_FALSE(comes("finished.txt", 100));
    EXPECT_TRUE(comes("finished.txt"));
}

TEST_F(BatchRunOfAProcessor, ABaseWithABlankReachesTheProcessorInPiecesAndLeavesNoMarker) {
    processor("printf '%s|' \"$@\" > words; echo listing > 'my B_tempoline.lst'\n");
    start("my B");
    ASSERT_TRUE(comes("words"));
    EXPECT_FALSE(comes("finished.txt", 300));
    EXPECT_EQ(directory_.read("out dir/words"), "my|B_tempoline.inp|");
}

TEST_F(BatchRunOfAProcessor, NothingInANameMeansAnythingToTheShell) {
    processor("printf '%s|' \"$@\" > words; echo listing > \"${1%.inp}.lst\"\n");
    start("$(touch${IFS}hacked);B'&");
    ASSERT_TRUE(comes("finished.txt"));
    EXPECT_FALSE(comes("hacked", 50));
    EXPECT_EQ(directory_.read("out dir/words"), "$(touch${IFS}hacked);B'&_tempoline.inp|");
}

TEST(BatchScript, DriveLinesAndPauseDoNothing) { EXPECT_EQ(asShellScript({"D:", "pause", ""}), ""); }

}  // namespace
}  // namespace zg
