#include "tempoline/OutputFile.h"

#include <gtest/gtest.h>
#include <unistd.h>

#include "tests/tempoline/TempolineSupport.h"

namespace zg::tempoline {

namespace {

std::size_t filesHere() {
    return static_cast<std::size_t>(std::distance(std::filesystem::directory_iterator("."), {}));
}

}  // namespace

TEST(OutputFile, TakesItsNameAtTheCommit) {
    const InDirectory inside;
    inside.directory.write("a", "old");
    OutputFile file("a");
    file.write("new");
    file.finish();
    EXPECT_EQ(inside.directory.read("a"), "old");
    file.commit();
    EXPECT_EQ(inside.directory.read("a"), "new");
    EXPECT_EQ(filesHere(), 1U);
}

TEST(OutputFile, LeavesNothingWithoutACommit) {
    const InDirectory inside;
    {
        OutputFile file("a");
        file.write(std::string(100'000, 'x'));
    }
    EXPECT_EQ(filesHere(), 0U);
}

TEST(OutputFile, ANameThatCannotBeTakenIsAFailureBeforeAnythingIsWritten) {
    const InDirectory inside;
    std::filesystem::create_directory("a");
    EXPECT_EQ(failureOf([] { OutputFile file("a"); }), "a: cannot be written: Is a directory");
    const std::string longName(256, 'x');
    EXPECT_EQ(failureOf([&] { OutputFile file(longName); }),
              longName + ": cannot be written: File name too long");
    EXPECT_EQ(filesHere(), 1U);
    OutputFile(longName.substr(1)).commit();
}

TEST(OutputFile, WhereOneOfThemFailsTheOlderFilesComeBack) {
    const InDirectory inside;
    inside.directory.write("a", "old a");
    inside.directory.write("b", "old b");
    {
        OutputFile a("a");
        OutputFile fresh("fresh");
        OutputFile again("a");
        OutputFile b("b");
        OutputFile late("late");
        for (OutputFile* const file : {&a, &fresh, &again, &b, &late}) file->write("new");
        std::filesystem::create_directory("late");
        EXPECT_EQ(failureOf([&] {
                      OutputFile::commitAll({&a, &fresh, &again, &b, &late});
                  }),
                  "late: cannot be written: Is a directory");
    }
    EXPECT_EQ(inside.directory.read("a"), "old a");
    EXPECT_EQ(inside.directory.read("b"), "old b");
    EXPECT_EQ(filesHere(), 3U);
}

TEST(OutputFile, TakesAnotherNameWhereAKilledRunLeftOne) {
    const InDirectory inside;
    for (int i = 1; i <= 2000; ++i)
        inside.directory.write(".tempoline-" + std::to_string(getpid()) + "-" + std::to_string(i) + ".tmp",
                               "");
    inside.directory.write("a", "old");
    OutputFile file("a");
    file.write("new");
    file.commit();
    EXPECT_EQ(inside.directory.read("a"), "new");
    EXPECT_EQ(filesHere(), 2001U);
}

}  // namespace zg::tempoline
