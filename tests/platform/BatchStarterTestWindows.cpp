// Batch files in the command shell of Windows.

#include <gtest/gtest.h>

#include <QTest>
#include <filesystem>

#include "platform/BatchStarter.h"
#include "tests/support/Raises.h"
#include "tests/support/TempDirectory.h"

namespace zg {
namespace {

constexpr int patienceMs = 60'000;

TEST(BatchStarterOfWindows, StartsAFileWhoseNameHasSignsOfTheShell) {
    const TempDirectory directory;
    for (const std::string name : {"plain.bat", "a blank.bat", "a & (b).bat"}) {
        const std::string marker = directory.file(name + ".txt");
        const std::string batchFile = directory.write(name, "@echo ran> \"" + marker + "\"\r\n");
        BatchStarter().start(batchFile, WindowStyle::Hidden);
        ASSERT_TRUE(QTest::qWaitFor([&] { return std::filesystem::exists(marker); }, patienceMs)) << name;
        EXPECT_TRUE(QTest::qWaitFor([&] { return directory.read(name + ".txt") == "ran\r\n"; }, patienceMs))
            << name;
    }
}

TEST(BatchStarterOfWindows, WaitsForNothing) {
    const TempDirectory directory;
    const std::string go = directory.file("go");
    const std::string batchFile = directory.write(
        "wait.bat", "@echo ran> \"" + directory.file("ran") + "\"\r\n:again\r\nif not exist \"" + go +
                        "\" goto again\r\n@echo done> \"" + directory.file("done") + "\"\r\n");
    BatchStarter starter;
    starter.start(batchFile, WindowStyle::Hidden);
    ASSERT_TRUE(QTest::qWaitFor([&] { return std::filesystem::exists(directory.file("ran")); }, patienceMs));
    EXPECT_FALSE(std::filesystem::exists(directory.file("done")));
    EXPECT_EQ(starter.outcome(batchFile), "");
    directory.write("go", "");
    EXPECT_TRUE(QTest::qWaitFor([&] { return std::filesystem::exists(directory.file("done")); }, patienceMs));
}

TEST(BatchStarterOfWindows, AListingOfAnEarlierRunMakesNoMarker) {
    const TempDirectory directory;
    directory.write("B_tempoline.lst", "of an earlier run");
    const RunBatch run{directory.file(""), "B", directory.path()};
    std::string lines;
    for (const std::string& line : batchLines(run))
        lines += (line == "pause" ? "echo ran> ended" : line) + "\r\n";
    directory.write("run_tempoline.bat", lines);
    BatchStarter().startRun(run);
    ASSERT_TRUE(
        QTest::qWaitFor([&] { return std::filesystem::exists(directory.file("ended")); }, patienceMs));
    EXPECT_FALSE(std::filesystem::exists(directory.file("finished.txt"))) << "there is no processor";
}

TEST(BatchStarterOfWindows, StartsNothingBesideAListingThatCannotBeRemoved) {
    const TempDirectory directory;
    const std::string listing = directory.write("B_tempoline.lst", "of an earlier run");
    directory.write("run_tempoline.bat", "echo ran> ran\r\n");
    std::filesystem::permissions(listing, std::filesystem::perms::owner_read);
    EXPECT_RAISES(70, "Permission denied: " + listing + ", of an earlier run, cannot be removed",
                  (BatchStarter().startRun({directory.file(""), "B", directory.path()}), 0));
    std::filesystem::permissions(listing, std::filesystem::perms::owner_all);
    EXPECT_EQ(directory.read("B_tempoline.lst"), "of an earlier run");
}

TEST(BatchStarterOfWindows, RaisesTheErrorOfABatchFileThatIsMissing) {
    const TempDirectory directory;
    EXPECT_RAISES(53, "File not found",
                  (BatchStarter().start(directory.file("none.bat"), WindowStyle::Hidden), 0));
}

}  // namespace
}  // namespace zg
