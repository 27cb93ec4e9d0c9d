#include "base/Paths.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <string>
#include <utility>
#include <vector>

#include "tests/support/System.h"
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
    EXPECT_EQ(DirOf("a\\", '\\'), "a");
    EXPECT_EQ(FileNameOf("", '\\'), "");
    EXPECT_EQ(DirOf("", '\\'), "");
    EXPECT_EQ(FileNameOf("\\b.frq", '\\'), "b.frq");
    EXPECT_EQ(DirOf("\\b.frq", '\\'), "");
    EXPECT_EQ(DirOf("C:\\", '\\'), "C:");
    EXPECT_EQ(FileNameOf("C:b.frq", '\\'), "C:b.frq");
    EXPECT_EQ(FileNameOf("C:\\a/b.frq", '\\'), "a/b.frq");
    EXPECT_EQ(DirOf("C:\\a/b.frq", '\\'), "C:");
}

TEST(Paths, ABackslashPartsOnEveryPlatform) {
    EXPECT_EQ(FileNameOf("/a/b\\c", '/'), "c");
    EXPECT_EQ(DirOf("/a/b\\c", '/'), "/a/b");
    EXPECT_EQ(FileNameOf("C:\\a/b", '/'), "b");
    EXPECT_EQ(DirOf("C:\\a\\b"), "C:\\a");
}

TEST(Paths, ThePlatformsSeparatorIsTheDefault) {
    const std::string path = std::string("a") + pathSeparator + "b";
    EXPECT_EQ(FileNameOf(path), "b");
    EXPECT_EQ(DirOf(path), "a");
}

TEST(Paths, AreShownWithThePlatformsOwnSeparators) {
    EXPECT_EQ(withOwnSeparators("C:/a\\b/c/", '\\'), "C:\\a\\b\\c\\");
    EXPECT_EQ(withOwnSeparators("/a\\b/c", '/'), "/a\\b/c");
}

TEST(Paths, DrivesEndAtTheFirstColon) {
    EXPECT_EQ(DriveOf(" D:\\x "), "D:");
    EXPECT_EQ(DriveOf("/home"), "/home:");
    EXPECT_EQ(DriveOf(""), ":");
    EXPECT_EQ(DriveOf("D:"), "D:");
    EXPECT_EQ(DriveOf(":x:y"), ":");
    EXPECT_EQ(DriveOf("   "), ":");
    EXPECT_EQ(DriveOf("\tD:\\"), "\tD:");
    EXPECT_EQ(DriveOf("C:\\a:b"), "C:");
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

TEST(ExistingFile, AmongOtherCasesTheFirstByItsBytesCounts) {
    const TempDirectory directory;
    for (const char* name : {"oUT.frq", "OUt.frq", "Out.frq"}) directory.write(name, "");
    EXPECT_EQ(existingFile(directory.file("out.frq")), directory.file("OUt.frq"));
}

TEST(ExistingFile, PassesOverWhatIsNoPlainFile) {
    const TempDirectory directory;
    std::filesystem::create_directory(directory.file("OUT.FRQ"));
    ASSERT_TRUE(makePipe(directory.file("Out.frq")));
    std::filesystem::create_symlink(directory.file("nowhere"), directory.file("oUT.frq"));
    EXPECT_EQ(existingFile(directory.file("out.frq")), "");
    EXPECT_EQ(existingFile(directory.file("Out.frq")), "");
    directory.write("outT.frq", "");
    std::filesystem::create_symlink("outT.frq", directory.file("ouT.frq"));
    EXPECT_EQ(existingFile(directory.file("out.frq")), directory.file("ouT.frq")) << "a link to a plain file";
}

TEST(ExistingFile, TakesNamesOfAnyBytes) {
    const TempDirectory directory;
    const std::string name = directory.write("\xFF\xC3 .FRQ", "");
    EXPECT_EQ(existingFile(directory.file("\xFF\xC3 .frq")), name);
    EXPECT_FALSE(fileExists(name + std::string("\0x", 2)));
    EXPECT_FALSE(fileExists(std::string(100000, 'x')));
    EXPECT_FALSE(fileExists(name + "/"));
    EXPECT_FALSE(fileExists(name + "/below"));
}

TEST(IsDirectory, CountsErrorsAsFalse) {
    const TempDirectory directory;
    EXPECT_TRUE(IsDirectory(directory.path()));
    EXPECT_FALSE(IsDirectory(directory.write("file", "")));
    EXPECT_FALSE(IsDirectory(std::string(100000, 'x')));
    EXPECT_FALSE(IsDirectory(""));
    EXPECT_FALSE(IsDirectory(directory.path() + std::string("\0x", 2)));
    EXPECT_FALSE(IsDirectory(directory.file("file/below")));
    EXPECT_TRUE(IsDirectory(directory.path() + "/"));
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
    EXPECT_EQ(filesMatching(directory.file("*.FRQ")), filesMatching(directory.file("*.frq")));
    EXPECT_EQ(filesMatching(directory.file("D.frq?")), (std::vector<std::string>{"d.frqx"}));
    EXPECT_EQ(filesMatching(directory.file("*")).size(), 6U);
    EXPECT_EQ(filesMatching(directory.file("?.*")).size(), 5U);
    EXPECT_EQ(filesMatching(directory.file("b.frq")), (std::vector<std::string>{"b.frq"}));
    EXPECT_TRUE(filesMatching(directory.file("b.frq?")).empty());
    EXPECT_TRUE(filesMatching(directory.file("")).empty());
    EXPECT_TRUE(filesMatching(directory.file("b.frq/*")).empty());
}

TEST(FilesMatching, NamesThatDifferOnlyInTheirCaseComeInTheOrderOfTheirBytes) {
    const TempDirectory directory;
    for (const char* name : {"a.frq", "B.frq", "A.frq", "b.frq", "_.frq"}) directory.write(name, "");
    EXPECT_EQ(filesMatching(directory.file("*.frq")),
              (std::vector<std::string>{"_.frq", "A.frq", "a.frq", "B.frq", "b.frq"}));
}

TEST(FilesMatching, OtherSignsStandForThemselves) {
    const TempDirectory directory;
    for (const char* name : {"[ab].frq", "a.frq", "a+(1).frq", "\xE9.frq"}) directory.write(name, "");
    EXPECT_EQ(filesMatching(directory.file("[ab].frq")), (std::vector<std::string>{"[ab].frq"}));
    EXPECT_EQ(filesMatching(directory.file("A+(*).frq")), (std::vector<std::string>{"a+(1).frq"}));
    EXPECT_EQ(filesMatching(directory.file("\xE9*")), (std::vector<std::string>{"\xE9.frq"}));
}

TEST(FilesMatching, GivesPlainFilesOnly) {
    const TempDirectory directory;
    directory.write("file.frq", "");
    ASSERT_TRUE(makePipe(directory.file("pipe.frq")));
    std::filesystem::create_symlink("file.frq", directory.file("link.frq"));
    std::filesystem::create_symlink("nowhere", directory.file("dangling.frq"));
    EXPECT_EQ(filesMatching(directory.file("*.frq")), (std::vector<std::string>{"file.frq", "link.frq"}));
}

TEST(FilesMatching, TakesANameWithoutADirectoryFromTheCurrentOne) {
    const TempDirectory directory;
    directory.write("HERE.frq", "");
    const std::filesystem::path before = std::filesystem::current_path();
    std::filesystem::current_path(directory.path());
    const std::vector<std::string> names = filesMatching("*.frq");
    const std::string existing = existingFile("here.frq");
    std::filesystem::current_path(before);
    EXPECT_EQ(names, (std::vector<std::string>{"HERE.frq"}));
    EXPECT_EQ(existing, "HERE.frq");
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
    const std::string before = std::exchange(applicationDirectory, "/program");
    EXPECT_EQ(inApplicationDirectory("a.txt"), std::string("/program") + pathSeparator + "a.txt");
    applicationDirectory = before;
}

}  // namespace
TEST(WithSeparatorTest, AddsOneWhereNoneIs) {
    EXPECT_EQ(withSeparator("C:\\work", '\\'), "C:\\work\\");
    EXPECT_EQ(withSeparator("C:\\work\\", '\\'), "C:\\work\\");
    EXPECT_EQ(withSeparator("/data", '/'), "/data/");
    EXPECT_EQ(withSeparator("/data/", '/'), "/data/");
    EXPECT_EQ(withSeparator("/data\\", '/'), "/data\\") << "a path typed elsewhere keeps its own";
    EXPECT_EQ(withSeparator("/data/", '\\'), "/data/\\");
    EXPECT_EQ(withSeparator("", '\\'), "\\");
}

}  // namespace zg
