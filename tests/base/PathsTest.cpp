#include "base/Paths.h"

#include <gtest/gtest.h>

#include <filesystem>

#include "tests/support/TempDirectory.h"

namespace zg {
namespace {

TEST(Paths, NamesAndDirectoriesPartAtTheLastSeparator) {
    EXPECT_EQ(FileNameOf("C:\\a\\b.frq", '\\'), "b.frq");
    EXPECT_EQ(DirOf("C:\\a\\b.frq", '\\'), "C:\\a");
    EXPECT_EQ(FileNameOf("b.frq", '\\'), "b.frq");
    EXPECT_EQ(DirOf("b.frq", '\\'), "");
    EXPECT_EQ(FileNameOf("/a/b.frq", '/'), "b.frq");
    EXPECT_EQ(DirOf("/a/b.frq", '/'), "/a");
    EXPECT_EQ(FileNameOf("a\\", '\\'), "");
}

TEST(Paths, ABackslashPartsOnEveryPlatform) { EXPECT_EQ(FileNameOf("/a/b\\c", '/'), "c"); }

TEST(Paths, DrivesEndAtTheFirstColon) {
    EXPECT_EQ(DriveOf(" D:\\x "), "D:");
    EXPECT_EQ(DriveOf("/home"), "/home:");
    EXPECT_EQ(DriveOf(""), ":");
}

TEST(ExistingFile, TakesTheExactNameFirstAndThenAnyCase) {
    const TempDirectory directory;
    directory.write("OUT.FRQ", "1");
    EXPECT_EQ(existingFile(directory.file("out.frq")), directory.file("OUT.FRQ"));
    directory.write("out.frq", "2");
    EXPECT_EQ(existingFile(directory.file("out.frq")), directory.file("out.frq"));
    EXPECT_FALSE(fileExists(directory.file("other.frq")));
    EXPECT_FALSE(fileExists(""));
    EXPECT_FALSE(fileExists(directory.path()));
    EXPECT_FALSE(fileExists(directory.file("no/such/place")));
}

TEST(IsDirectory, CountsErrorsAsFalse) {
    const TempDirectory directory;
    EXPECT_TRUE(IsDirectory(directory.path()));
    EXPECT_FALSE(IsDirectory(directory.write("file", "")));
    EXPECT_FALSE(IsDirectory(std::string(100000, 'x')));
    EXPECT_FALSE(IsDirectory(""));
}

TEST(FilesMatching, IgnoresCaseAndSortsByName) {
    const TempDirectory directory;
    for (const char* name : {"b.frq", "A.FRQ", "c.Frq", ".hidden.frq", "d.frqx", "d.txt"})
        directory.write(name, "");
    std::filesystem::create_directory(directory.file("dir.frq"));
    EXPECT_EQ(filesMatching(directory.file("*.frq")),
              (std::vector<std::string>{".hidden.frq", "A.FRQ", "b.frq", "c.Frq"}));
    EXPECT_EQ(filesMatching(directory.file("?.txt")), (std::vector<std::string>{"d.txt"}));
    EXPECT_TRUE(filesMatching(directory.file("no/such/*")).empty());
}

TEST(FilesMatching, ManyStarsCostNoTime) {
    const TempDirectory directory;
    directory.write(std::string(200, 'a') + "b", "");
    std::string pattern;
    for (int i = 0; i < 100; ++i) pattern += "*a";
    EXPECT_TRUE(filesMatching(directory.file(pattern)).empty());
    EXPECT_EQ(filesMatching(directory.file(pattern + "*b")).size(), 1U);
}

TEST(InApplicationDirectory, JoinsWithTheSeparator) {
    applicationDirectory = "/program";
    EXPECT_EQ(inApplicationDirectory("a.txt"), std::string("/program") + pathSeparator + "a.txt");
}

}  // namespace
}  // namespace zg
