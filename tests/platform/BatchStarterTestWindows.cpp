// Batch files in the command shell of Windows.

#include <gtest/gtest.h>

#include <QTest>
#include <filesystem>

#include "platform/BatchStarter.h"
#include "tests/support/Raises.h"
#include "tests/support/TempDirectory.h"

namespace zg {
namespace {

constexpr int longEnoughMs = 60'000;

TEST(BatchStarterOfWindows, StartsAFileWhoseNameHasSignsOfTheShell) {
    const TempDirectory directory;
    for (const std::string name : {"plain.bat", "a blank.bat", "a & (b).bat"}) {
        const std::string marker = directory.file(name + ".txt");
        const std::string batchFile = directory.write(name, "@echo ran> \"" + marker + "\"\r\n");
        BatchStarter().start(batchFile, WindowStyle::Hidden);
        ASSERT_TRUE(QTest::qWaitFor([&] { return std::filesystem::exists(marker); }, longEnoughMs)) << name;
        EXPECT_TRUE(QTest::qWaitFor([&] { return directory.read(name + ".txt") == "ran\r\n"; }, longEnoughMs))
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
    ASSERT_TRUE(
        QTest::qWaitFor([&] { return std::filesystem::exists(directory.file("ran")); }, longEnoughMs));
    EXPECT_FALSE(std::filesystem::exists(directory.file("done")));
    EXPECT_EQ(starter.outcome(batchFile), "");
    directory.write("go", "");
    EXPECT_TRUE(
        QTest::qWaitFor([&] { return std::filesystem::exists(directory.file("done")); }, longEnoughMs));
}

TEST(BatchStarterOfWindows, RaisesTheErrorOfABatchFileThatIsMissing) {
    const TempDirectory directory;
    EXPECT_RAISES(53, "File not found",
                  (BatchStarter().start(directory.file("none.bat"), WindowStyle::Hidden), 0));
}

}  // namespace
}  // namespace zg
