#include "processing/Directories.h"

#include <gtest/gtest.h>

#include <filesystem>

#include "tests/support/TempDirectory.h"
#include "tests/support/TestHost.h"

namespace {

using namespace zg;

TEST(IsOutputDirectoryTest, BlanksRoundItDoNotCountAndBlanksAloneAreNone) {
    const TempDirectory temp;
    EXPECT_TRUE(isOutputDirectory(temp.path()));
    EXPECT_TRUE(isOutputDirectory("  " + temp.path() + "/ "));
    EXPECT_TRUE(isOutputDirectory("/"));
    for (const char* none : {"", " ", "  /", " \\", "/no/such/directory/"})
        EXPECT_FALSE(isOutputDirectory(none)) << none;
}

TEST(MakeDirectoryTreeTest, MakesAllMissingLevels) {
    const TempDirectory temp;
    EXPECT_TRUE(MakeDirectoryTree(temp.file("a/b/c"), '/'));
    EXPECT_TRUE(IsDirectory(temp.file("a/b/c")));
}

TEST(MakeDirectoryTreeTest, OneFinalSeparatorIsNoLevel) {
    const TempDirectory temp;
    EXPECT_TRUE(MakeDirectoryTree(temp.file("a/b/"), '/'));
    EXPECT_TRUE(IsDirectory(temp.file("a/b")));
}

TEST(MakeDirectoryTreeTest, LevelsEndAtBackslashes) {
    const TempDirectory temp;
    ASSERT_TRUE(MakeDirectoryTree(temp.file("x\\y\\"), '\\'));
    EXPECT_TRUE(IsDirectory(temp.file("x")));
    // Where a backslash is an ordinary character each level is one name.
    EXPECT_TRUE(IsDirectory(temp.file("x\\y")));
}

TEST(MakeDirectoryTreeTest, DirectoryThatIsThereIsFine) {
    const TempDirectory temp;
    EXPECT_TRUE(MakeDirectoryTree(temp.path(), '/'));
    EXPECT_TRUE(MakeDirectoryTree(temp.path() + "/", '/'));
}

TEST(MakeDirectoryTreeTest, PathOfOneNameIsMadeInTheCurrentDirectory) {
    const TempDirectory temp;
    const auto before = std::filesystem::current_path();
    std::filesystem::current_path(temp.path());
    EXPECT_TRUE(MakeDirectoryTree("bare", '/'));
    std::filesystem::current_path(before);
    EXPECT_TRUE(IsDirectory(temp.file("bare")));
}

TEST(MakeDirectoryTreeTest, ParentThatIsAFileGivesFalse) {
    const TempDirectory temp;
    temp.write("file", "x");
    EXPECT_FALSE(MakeDirectoryTree(temp.file("file/a/b"), '/'));
    EXPECT_FALSE(MakeDirectoryTree(temp.file("file"), '/'));
    EXPECT_EQ(temp.read("file"), "x");
}

TEST(MakeDirectoryTreeTest, NoNameAndEndlessNamesGiveFalse) {
    const TempDirectory temp;
    EXPECT_FALSE(MakeDirectoryTree("", '/'));
    std::string deep = temp.path();
    while (deep.size() <= 4096) deep += "/d";
    EXPECT_FALSE(MakeDirectoryTree(deep, '/'));
    EXPECT_FALSE(MakeDirectoryTree(temp.path() + std::string(10'000'000, '/') + "x", '/'));
    EXPECT_FALSE(MakeDirectoryTree(temp.file(std::string(300, 'n')), '/'));
}

struct Calls {
    std::string order;
    WorkDirCaller caller{[this] { order += "white "; }, [this] { order += "restart"; }};
};

TEST(AskCreateWorkDirTest, YesMakesItClearsTheBoxAndRestarts) {
    const TempDirectory temp;
    const std::string directory = temp.file("new") + pathSeparator + "dir" + pathSeparator;
    TestHost host;
    host.boxAnswers = {BoxAnswer::Yes};
    Calls calls;
    AskCreateWorkDir(host, calls.caller, directory);
    ASSERT_EQ(host.boxes.size(), 1U);
    EXPECT_EQ(host.boxes[0].text, "The Working Directory " + directory +
                                      " does not exist.  Would you like to create this directory?");
    EXPECT_EQ(host.boxes[0].title, "Create Directory?");
    EXPECT_EQ(host.boxes[0].icon, BoxIcon::Question);
    EXPECT_EQ(host.boxes[0].buttons, BoxButtons::YesNo);
    EXPECT_TRUE(IsDirectory(temp.file("new/dir")));
    EXPECT_EQ(calls.order, "white restart");
}

TEST(AskCreateWorkDirTest, NoEndsIt) {
    const TempDirectory temp;
    TestHost host;
    host.boxAnswers = {BoxAnswer::No};
    Calls calls;
    AskCreateWorkDir(host, calls.caller, temp.file("new"));
    EXPECT_FALSE(IsDirectory(temp.file("new")));
    EXPECT_EQ(calls.order, "");
}

TEST(AskCreateWorkDirTest, DirectoryThatCannotBeMadeIsToldByTheCallerWithoutABox) {
    const TempDirectory temp;
    temp.write("file", "");
    TestHost host;
    host.boxAnswers = {BoxAnswer::Yes};
    Calls calls;
    std::string told;
    calls.caller.tellFailure = [&told](const std::string& reason) { told = reason; };
    AskCreateWorkDir(host, calls.caller, temp.file("file") + pathSeparator + "new");
    EXPECT_EQ(told.substr(0, told.rfind(':')), temp.file("file")) << told;
    EXPECT_EQ(host.boxes.size(), 1U) << "the question alone";
    EXPECT_EQ(calls.order, "");
}

class FindFilesTest : public testing::Test {
 protected:
    FindFilesTest() { fileCounts = {}; }
    ~FindFilesTest() override { fileCounts = {}; }

    TempDirectory temp_;
};

TEST_F(FindFilesTest, NamesInTheDirectorysOrderAndTheirCountForTheCaller) {
    for (const char* name : {"b.frq", "A.FRQ", "c.frq", ".hidden.frq", "d.txt"}) temp_.write(name, "");
    std::filesystem::create_directory(temp_.file("e.frq"));
    fileCounts.ReportFileCount = 7;
    EXPECT_EQ(FindFiles("BatchMode", temp_.file("*.frq")),
              (std::vector<std::string>{".hidden.frq", "A.FRQ", "b.frq", "c.frq"}));
    EXPECT_EQ(fileCounts.BatchFileCount, 4);
    EXPECT_EQ(fileCounts.ReportFileCount, 7) << "the other caller's count stays";
}

TEST_F(FindFilesTest, ReportHasItsOwnCount) {
    temp_.write("a.bmp", "");
    fileCounts.BatchFileCount = 7;
    EXPECT_EQ(FindFiles("CreateReport", temp_.file("*.bmp")), std::vector<std::string>{"a.bmp"});
    EXPECT_EQ(fileCounts.ReportFileCount, 1);
    EXPECT_EQ(fileCounts.BatchFileCount, 7);
}

TEST_F(FindFilesTest, NothingFoundIsOneEmptyText) {
    fileCounts.BatchFileCount = 7;
    EXPECT_EQ(FindFiles("BatchMode", temp_.file("*.frq")), std::vector<std::string>{""});
    EXPECT_EQ(fileCounts.BatchFileCount, 0);
    EXPECT_EQ(FindFiles("BatchMode", temp_.file("missing/*.frq")), std::vector<std::string>{""});
}

TEST_F(FindFilesTest, AnyOtherCallerCountsNothing) {
    temp_.write("a.bmp", "");
    EXPECT_EQ(FindFiles("", temp_.file("*.bmp")), std::vector<std::string>{"a.bmp"});
    EXPECT_EQ(fileCounts.ReportFileCount, 0);
    EXPECT_EQ(fileCounts.BatchFileCount, 0);
}

}  // namespace
