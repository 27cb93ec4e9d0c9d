#include "base/Files.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cerrno>
#include <string>
#include <vector>

#include "base/Lines.h"
#include "base/Paths.h"
#include "tests/support/TempDirectory.h"

namespace zg {
namespace {

/// Names that a system with another code page, or with a bound on the length of a path, has trouble with.
std::vector<std::string> oddNames() {
    return {"plain", "two words.frq", "W\xC3\xBCrzburg \xC3\x9F.frq",
            "\xD0\x9C\xD0\xBE\xD1\x81\xD0\xBA\xD0\xB2\xD0\xB0.frq", "\xE9\xA2\xA8 \xF0\x9F\x8C\xAC.frq"};
}

/// A directory so deep that its path has more than 260 characters.
std::string deepDirectory(const TempDirectory& directory) {
    std::string path = directory.file("deep");
    while (path.size() < 400) path += pathSeparator + std::string(60, 'd');
    EXPECT_TRUE(makeDirectories(path));
    return path;
}

void writeBytes(const std::string& name, const std::string& bytes) {
    const FileHandle file(openStream(name, "wb"));
    ASSERT_TRUE(file);
    std::fwrite(bytes.data(), 1, bytes.size(), file.get());
}

TEST(Files, OfAnyNameAreWrittenReadAndListed) {
    const TempDirectory directory;
    for (const std::string& folder : {directory.path(), deepDirectory(directory)}) {
        for (const std::string& name : oddNames()) {
            const std::string path = folder + pathSeparator + name;
            writeBytes(path, "a\r\nb\n");
            EXPECT_EQ(readWholeFile(path), "a\r\nb\n") << "bytes as they are: " << path;
            EXPECT_EQ(stateOfFile(path).value_or(FileState()).size, 5U);
            EXPECT_TRUE(fileExists(path)) << path;
            const std::vector<std::string> names = namesIn(folder);
            EXPECT_EQ(std::count(names.begin(), names.end(), name), 1) << path;
            ASSERT_TRUE(moveFile(path, path + "2")) << path;
            EXPECT_FALSE(stateOfFile(path));
            EXPECT_TRUE(removeFile(path + "2")) << path;
        }
    }
}

TEST(Files, AreReplacedInOneStep) {
    const TempDirectory directory;
    const std::string old = directory.write("old", "old");
    const std::string fresh = directory.write("fresh", "fresh");
    ASSERT_TRUE(moveFile(fresh, old));
    EXPECT_EQ(directory.read("old"), "fresh");
    EXPECT_FALSE(moveFile(directory.file("none"), old));
    EXPECT_EQ(errno, ENOENT);
    EXPECT_EQ(directory.read("old"), "fresh");
    ASSERT_TRUE(makeDirectory(directory.file("taken")));
    EXPECT_FALSE(moveFile(old, directory.file("taken")));
    EXPECT_EQ(errno, EISDIR);
}

TEST(Files, ThatOthersReadCanBeReplacedAndRemoved) {
    const TempDirectory directory;
    const std::string path = directory.write("a", "old");
    const FileHandle reader(openStream(path, "rb"));
    ASSERT_TRUE(moveFile(directory.write("b", "new"), path));
    char first = 0;
    ASSERT_EQ(std::fread(&first, 1, 1, reader.get()), 1U);
    EXPECT_EQ(first, 'o') << "who has it open goes on with what it was";
    EXPECT_EQ(directory.read("a"), "new");
    const FileHandle second(openStream(path, "rb"));
    EXPECT_TRUE(removeFile(path));
    EXPECT_FALSE(openStream(path, "rb"));
}

TEST(Files, AreMadeOnlyUnderFreeNames) {
    const TempDirectory directory;
    const std::string name = directory.file("a");
    EXPECT_TRUE(makeFile(name));
    EXPECT_FALSE(makeFile(name));
    EXPECT_EQ(errno, EEXIST);
    EXPECT_FALSE(openStream(name, "wbx"));
    EXPECT_EQ(errno, EEXIST);
    EXPECT_FALSE(makeDirectory(name));
    EXPECT_EQ(errno, EEXIST);
    EXPECT_FALSE(makeFile(directory.file("no/a")));
    EXPECT_EQ(errno, ENOENT);
    EXPECT_TRUE(FileHandle(openStream(directory.file("b"), "wbx")));
    EXPECT_EQ(directory.read("b"), "");
}

TEST(Files, GrowAtTheirEnd) {
    const TempDirectory directory;
    const std::string name = directory.write("a", "1\n");
    EXPECT_TRUE(appendToFile(name, "2\n"));
    EXPECT_TRUE(appendToFile(name, ""));
    EXPECT_TRUE(appendToFile(name, std::string(3'000'000, 'x')));
    EXPECT_EQ(directory.read("a"), "1\n2\n" + std::string(3'000'000, 'x'));
    EXPECT_FALSE(appendToFile(directory.file("none"), "x"));
    EXPECT_EQ(errno, ENOENT);
    EXPECT_FALSE(stateOfFile(directory.file("none")));
}

TEST(Files, AreKnownByAllTheirNames) {
    const TempDirectory directory;
    const std::string a = directory.write("a", "x");
    const std::string b = directory.write("b", "x");
    EXPECT_TRUE(isOneFile(a, directory.path() + "/./a"));
    EXPECT_FALSE(isOneFile(a, b));
    EXPECT_FALSE(isOneFile(a, directory.file("none")));
    EXPECT_FALSE(isOneFile(directory.file("none"), directory.file("none")));
    EXPECT_EQ(wholePath(directory.path() + "/./a"), wholePath(directory.path()) + pathSeparator + "a");
    EXPECT_EQ(wholePath(directory.file("none")), "");
}

TEST(Files, TellDirectoriesFromPlainOnes) {
    const TempDirectory directory;
    EXPECT_EQ(stateOfFile(directory.path())->kind, FileKind::Directory);
    EXPECT_EQ(stateOfName(directory.write("a", "x"))->kind, FileKind::Plain);
    EXPECT_FALSE(stateOfFile(directory.file("none")));
    EXPECT_EQ(errno, ENOENT);
    EXPECT_FALSE(stateOfFile(""));
    EXPECT_FALSE(stateOfFile(directory.file("a") + std::string("\0b", 2)));
    EXPECT_FALSE(stateOfName(directory.file(std::string(256, 'x'))));
    EXPECT_EQ(errno, ENAMETOOLONG);
}

TEST(Files, TreesAreMadeAndRemovedWhole) {
    const TempDirectory directory;
    const std::string tree = directory.file("a");
    const std::string inner = tree + pathSeparator + "b" + pathSeparator + "c" + pathSeparator;
    EXPECT_TRUE(makeDirectories(inner));
    EXPECT_TRUE(makeDirectories(inner));
    writeBytes(inner + "file", "x");
    EXPECT_FALSE(removeDirectory(tree));
    EXPECT_EQ(errno, ENOTEMPTY);
    EXPECT_FALSE(makeDirectories(inner + "file"));
    EXPECT_EQ(errno, ENOTDIR);
    EXPECT_FALSE(makeDirectories(inner + "file" + pathSeparator + "d"));
    EXPECT_EQ(errno, ENOTDIR);
    EXPECT_FALSE(makeDirectories(""));
    EXPECT_TRUE(removeTree(tree));
    EXPECT_FALSE(stateOfFile(tree));
    EXPECT_TRUE(removeTree(tree)) << "nothing is left of what was not there";
}

TEST(Files, PlainNamesLeadNowhereElse) {
    for (const std::string& name : oddNames()) EXPECT_TRUE(isPlainName(name)) << name;
    for (const char* const name : {"", ".", "..", "a/b", "/a"}) EXPECT_FALSE(isPlainName(name)) << name;
    EXPECT_FALSE(isPlainName(std::string("a\0b", 3)));
    // What only Windows refuses: other separators, streams, patterns, devices, endings that it would cut off.
    for (const char* const name :
         {"a\\b", "C:a", "a:b", "a*", "a?", "NUL", "nul.frq", "Com1", "lpt9.tab", "a.", "a ", "a\n"})
        EXPECT_EQ(isPlainName(name), !onWindows) << name;
    EXPECT_TRUE(isPlainName("COM10"));
    EXPECT_TRUE(isPlainName("console"));
}

std::string repeated(const char* letter, std::size_t count) {
    std::string name;
    for (std::size_t i = 0; i < count; ++i) name += letter;
    return name;
}

TEST(Files, NamesAreTooLongBeyond255BytesOrOnWindowsUnits) {
    const bool areUnits = onWindows;
    EXPECT_FALSE(isTooLongName(repeated("x", 255)));
    EXPECT_TRUE(isTooLongName(repeated("x", 256)));
    EXPECT_FALSE(isTooLongName(repeated("\xC3\xA4", 127)));
    EXPECT_EQ(isTooLongName(repeated("\xC3\xA4", 128)), !areUnits);
    EXPECT_TRUE(isTooLongName(repeated("\xC3\xA4", 256)));
}

TEST(Files, NamesAreTooLongIfTheSystemTakesThemForNoFile) {
    const TempDirectory directory;
    for (const std::string& name :
         {repeated("x", 255), repeated("x", 256), repeated("\xC3\xA4", 127), repeated("\xC3\xA4", 128),
          repeated("\xC3\xA4", 255), repeated("\xC3\xA4", 256)})
        EXPECT_EQ(isTooLongName(name), !makeFile(directory.file(name))) << name.size();
}

TEST(Files, NamesAreComparedAsTheSystemComparesThem) {
    const TempDirectory directory;
    directory.write("W\xC3\xBCrz.frq", "");
    const bool isOne = stateOfFile(directory.file("w\xC3\x9CRZ.FRQ")).has_value();
    EXPECT_EQ(nameKey("W\xC3\xBCrz.frq") == nameKey("w\xC3\x9CRZ.FRQ"), isOne);
    EXPECT_EQ(isOne, onWindows);
    EXPECT_NE(nameKey("a"), nameKey("b"));
}

TEST(Files, TheMachineAndTheProcessAreGoodInNames) {
    EXPECT_TRUE(isPlainName(machineName())) << machineName();
    EXPECT_GT(processNumber(), 0U);
}

TEST(Files, APartOfANameDoesNotChangeTheLettersOfTheOthers) {
    const std::string name = "W\xC3\xBCrzburg_" + asPartOfName("Z\xFCrich");
    EXPECT_EQ(name, onWindows ? "W\xC3\xBCrzburg_Z\xC3\xBCrich" : "W\xC3\xBCrzburg_Z\xFCrich");
}

}  // namespace
}  // namespace zg
