#include "platform/BatchStarter.h"

#include <gtest/gtest.h>

#include <unistd.h>

#include <QTest>
#include <cerrno>
#include <filesystem>

#include "tests/support/Raises.h"
#include "tests/support/TempDirectory.h"

namespace {
int forksThatSucceed = -1;  // unlimited
}

// The linker redirects the calls here (--wrap). A child process has its own copy of the count.
extern "C" {
pid_t __real_fork();
pid_t __wrap_fork() {
    if (forksThatSucceed == 0) {
        errno = EAGAIN;
        return -1;
    }
    if (forksThatSucceed > 0) --forksThatSucceed;
    return __real_fork();
}
}

namespace zg {
namespace {

/// Programs are searched in a directory of the test.
class BatchStarterTest : public ::testing::Test {
 protected:
    void SetUp() override {
        path_ = qgetenv("PATH");
        qputenv("PATH", QByteArray::fromStdString(directory_.path()));
    }
    void TearDown() override { qputenv("PATH", path_); }

    /// A viewer that records what it was asked to show.
    void addViewer() {
        const std::string viewer = directory_.write(
            "xdg-open", "#!/bin/sh\necho \"$#:$1\" > '" + directory_.file("part") + "'\n/bin/mv '" +
                            directory_.file("part") + "' '" + directory_.file("viewed") + "'\n");
        std::filesystem::permissions(viewer, std::filesystem::perms::owner_all);
    }

    TempDirectory directory_;
    QByteArray path_;
    BatchStarter starter_;
};

TEST_F(BatchStarterTest, ShowsTheFileOfTheLineInTheDesktopsViewer) {
    addViewer();
    for (const std::string path : {"/a b/$HOME;c.frq", "/a\"b.frq",
                                   "/Montr\xE9"
                                   "al.frq",
                                   "/-dash.frq", "/%&^!.frq"}) {
        std::filesystem::remove(directory_.file("viewed"));
        starter_.startViewer(directory_.write("open_file.bat", "notepad \"" + path + "\"\r\n"), path);
        ASSERT_TRUE(
            QTest::qWaitFor([&] { return std::filesystem::exists(directory_.file("viewed")); }, 20000));
        EXPECT_EQ(directory_.read("viewed"), "1:" + path + "\n") << "one argument, and no shell reads it";
    }
}

TEST_F(BatchStarterTest, ANameIsNeverAnOptionOfTheViewer) {
    addViewer();
    starter_.startViewer(directory_.write("open_file.bat", "notepad \"--help\"\r\n"), "--help");
    ASSERT_TRUE(QTest::qWaitFor([&] { return std::filesystem::exists(directory_.file("viewed")); }, 20000));
    EXPECT_EQ(directory_.read("viewed"), "1:./--help\n");
}

TEST_F(BatchStarterTest, AViewerThatCannotStartIsAnError) {
    std::filesystem::permissions(directory_.write("xdg-open", "#!/no/such/shell\n"),
                                 std::filesystem::perms::owner_all);
    const std::string batchFile = directory_.write("open_file.bat", "notepad \"/a.frq\"\r\n");
    EXPECT_RAISES(5, "Invalid procedure call or argument", (starter_.startViewer(batchFile, "/a.frq"), 0));
}

TEST_F(BatchStarterTest, AViewerForWhichThereIsNoProcessIsAnError) {
    addViewer();
    const std::string batchFile = directory_.write("open_file.bat", "notepad \"/a.frq\"\r\n");
    for (const int forks : {0, 1}) {
        forksThatSucceed = forks;
        EXPECT_RAISES(5, "Invalid procedure call or argument",
                      (starter_.startViewer(batchFile, "/a.frq"), 0));
        forksThatSucceed = -1;
    }
}

TEST_F(BatchStarterTest, TellsThatTheDesktopHasNoViewer) {
    const std::string batchFile = directory_.write("open_file.bat", "notepad \"/a.frq\"\r\n");
    EXPECT_RAISES(53, "File not found: xdg-open, which shows text files on this desktop",
                  (starter_.startViewer(batchFile, "/a.frq"), 0));
}

TEST_F(BatchStarterTest, RaisesTheErrorOfABatchFileThatIsMissing) {
    EXPECT_RAISES(53, "File not found", (starter_.startViewer(directory_.file("none.bat"), "/a.frq"), 0));
}

TEST_F(BatchStarterTest, ShowsNothingWhereAnotherHasChangedTheLine) {
    addViewer();
    for (const char* lines : {"notepad \"/b.frq\"\r\n", "", "notepad \"/a.frq\"\r\nnotepad \"/b.frq\"\r\n"}) {
        const std::string batchFile = directory_.write("open_file.bat", lines);
        EXPECT_RAISES(5,
                      "Invalid procedure call or argument: " + batchFile +
                          " holds other lines than this program writes",
                      (starter_.startViewer(batchFile, "/a.frq"), 0));
    }
    EXPECT_FALSE(std::filesystem::exists(directory_.file("viewed")));
}

TEST_F(BatchStarterTest, HasNoShellForBatchFilesOfOthers) {
    const std::string batchFile = directory_.write("other.bat", "echo x\r\n");
    EXPECT_RAISES(5, "Invalid procedure call or argument",
                  (starter_.start(batchFile, WindowStyle::NormalFocus), 0));
}

}  // namespace
}  // namespace zg
