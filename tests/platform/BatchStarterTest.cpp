#include "platform/BatchStarter.h"

#include <gtest/gtest.h>

#include <QTest>
#include <filesystem>

#include "tests/support/Raises.h"
#include "tests/support/TempDirectory.h"

namespace zg {
namespace {

TEST(BatchStarterLines, NameTheFileToView) {
    EXPECT_EQ(viewedFile("notepad \"/a b/c.frq\""), "/a b/c.frq");
    EXPECT_EQ(viewedFile("pause"), "");
    EXPECT_EQ(viewedFile(""), "");
}

#ifndef _WIN32

/// Programs are looked for in a directory of the test's own.
class BatchStarterTest : public ::testing::Test {
 protected:
    void SetUp() override {
        path_ = qgetenv("PATH");
        qputenv("PATH", QByteArray::fromStdString(directory_.path()));
    }
    void TearDown() override { qputenv("PATH", path_); }

    /// A viewer that notes what it was asked to show.
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
    starter_.start(directory_.write("open_file.bat", "notepad \"/a b/$HOME;c.frq\"\r\n"),
                   WindowStyle::Hidden);
    ASSERT_TRUE(QTest::qWaitFor([&] { return std::filesystem::exists(directory_.file("viewed")); }, 20000));
    EXPECT_EQ(directory_.read("viewed"), "1:/a b/$HOME;c.frq\n") << "one argument, and no shell reads it";
}

TEST_F(BatchStarterTest, TellsThatTheDesktopHasNoViewer) {
    const std::string batchFile = directory_.write("open_file.bat", "notepad \"/a.frq\"\r\n");
    EXPECT_RAISES(53, "File not found: xdg-open, which shows text files on this desktop",
                  (starter_.start(batchFile, WindowStyle::Hidden), 0));
}

TEST_F(BatchStarterTest, RaisesTheErrorOfABatchFileThatIsMissing) {
    EXPECT_RAISES(53, "File not found",
                  (starter_.start(directory_.file("none.bat"), WindowStyle::Hidden), 0));
}

#endif

}  // namespace
}  // namespace zg
