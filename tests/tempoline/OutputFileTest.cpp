#include "tempoline/OutputFile.h"

#include <gtest/gtest.h>

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
    {
        OutputFile file("a");
        file.write("new");
        file.finish();
        EXPECT_EQ(inside.directory.read("a"), "old");
        file.commit();
    }
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

TEST(OutputFile, WhereOneOfThemFailsNoneStays) {
    const InDirectory inside;
    {
        OutputFile a("a");
        OutputFile b("b");
        OutputFile late("late");
        for (OutputFile* const file : {&a, &b, &late}) file->write("new");
        std::filesystem::create_directory("late");
        EXPECT_EQ(failureOf([&] {
                      OutputFile::commitAll({&a, &b, &late});
                  }),
                  "late: cannot be written: Is a directory");
    }
    EXPECT_EQ(filesHere(), 1U);
}

}  // namespace zg::tempoline
