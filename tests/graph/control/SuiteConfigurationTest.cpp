#include "graph/control/SuiteConfiguration.h"

#include <gtest/gtest.h>

#include <filesystem>

#include "tests/support/TempDirectory.h"

namespace zg {
namespace {

std::string workDirOf(const std::string& bytes) {
    const TempDirectory directory;
    std::string workDir = "old";
    readSuiteWorkDir(directory.write("orbita.cfg", bytes), workDir);
    return workDir;
}

TEST(SuiteConfiguration, MissingFileGivesNoDirectory) {
    const TempDirectory directory;
    std::string workDir = "old";
    readSuiteWorkDir(directory.file("orbita.cfg"), workDir);
    EXPECT_EQ(workDir, "");
}

TEST(SuiteConfiguration, DirectoryOfThatNameIsNoFile) {
    const TempDirectory directory;
    std::string workDir = "old";
    readSuiteWorkDir(directory.path(), workDir);
    EXPECT_EQ(workDir, "");
}

TEST(SuiteConfiguration, FileThatCannotBeReadKeepsTheOldValueAndIsNotTold) {
    const TempDirectory directory;
    // It can be opened, but its first byte cannot be read.
    std::filesystem::create_symlink("/proc/self/mem", directory.file("orbita.cfg"));
    std::string workDir = "old";
    EXPECT_NO_THROW(readSuiteWorkDir(directory.file("orbita.cfg"), workDir));
    EXPECT_EQ(workDir, "old");
}

TEST(SuiteConfiguration, FileWithoutTheKeyKeepsTheOldValue) {
    EXPECT_EQ(workDirOf(""), "old");
    EXPECT_EQ(workDirOf("Other=x\r\n\r\nno sign\r\n"), "old");
}

TEST(SuiteConfiguration, BlanksRoundKeyAndValueDoNotCount) {
    EXPECT_EQ(workDirOf("  WorkDir  =  /a b/c  \r\n"), "/a b/c");
}

TEST(SuiteConfiguration, KeyIsOfExactCase) { EXPECT_EQ(workDirOf("workdir=/a\r\nWORKDIR=/b\r\n"), "old"); }

TEST(SuiteConfiguration, LineWithoutTheSignIsNoMatch) { EXPECT_EQ(workDirOf("WorkDir\r\n"), "old"); }

TEST(SuiteConfiguration, EmptyValueIsAValue) { EXPECT_EQ(workDirOf("WorkDir=\r\n"), ""); }

TEST(SuiteConfiguration, ValueIsCutAtItsSecondSign) { EXPECT_EQ(workDirOf("WorkDir=/a=b\r\n"), "/a"); }

TEST(SuiteConfiguration, FirstMatchCounts) { EXPECT_EQ(workDirOf("WorkDir=/a\nWorkDir=/b\n"), "/a"); }

TEST(SuiteConfiguration, LastLineNeedsNoEnd) { EXPECT_EQ(workDirOf("x=y\r\nWorkDir=/last"), "/last"); }

TEST(SuiteConfiguration, TabsAreNoBlanks) { EXPECT_EQ(workDirOf("WorkDir\t=/a\r\n"), "old"); }

}  // namespace
}  // namespace zg
