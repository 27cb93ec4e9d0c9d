#include "base/Lines.h"

#include <gtest/gtest.h>

#include <filesystem>

#include "tests/support/Raises.h"
#include "tests/support/TempDirectory.h"

namespace zg {
namespace {

std::vector<std::string> linesOf(const std::string& bytes) {
    const TempDirectory directory;
    LineReader reader(directory.write("lines.txt", bytes));
    std::vector<std::string> lines;
    while (!reader.atEnd()) lines.emplace_back(reader.readLine());
    LineReader inMemory = LineReader::ofText(bytes);
    for (const std::string& line : lines) EXPECT_EQ(inMemory.readLine(), line);
    EXPECT_TRUE(inMemory.atEnd());
    return lines;
}

using Strings = std::vector<std::string>;

TEST(LineReader, TakesEveryKindOfLineEnd) {
    EXPECT_EQ(linesOf("a\r\nb\rc\nd\r\n"), (Strings{"a", "b", "c", "d"}));
    EXPECT_EQ(linesOf("\n\r\n\r\r\n"), (Strings{"", "", "", ""}));
    EXPECT_EQ(linesOf("\n\n\r\n"), (Strings{"", "", ""}));
}

TEST(LineReader, ALastLineWithoutItsEndIsALine) {
    EXPECT_EQ(linesOf("a\r\nb"), (Strings{"a", "b"}));
    EXPECT_EQ(linesOf("a\r"), (Strings{"a"}));
    EXPECT_EQ(linesOf(""), Strings{});
}

TEST(LineReader, KeepsBytesAsTheyStand) {
    const std::string bytes("\0\xFF\t \x1A", 5);
    EXPECT_EQ(linesOf(bytes + "\r\n"), (Strings{bytes}));
}

TEST(LineReader, SeesAPairOfBytesAcrossTheEdgeOfItsWindow) {
    for (const std::size_t length : {65534U, 65535U, 65536U, 65537U, 131071U}) {
        const std::string line(length, 'x');
        EXPECT_EQ(linesOf(line + "\r\nnext\r\n"), (Strings{line, "next"})) << length;
        EXPECT_EQ(linesOf(line + "\rnext\r"), (Strings{line, "next"})) << length;
    }
}

TEST(LineReader, ReadsLinesOfAnyLength) {
    const std::string line(3000000, 'y');
    EXPECT_EQ(linesOf("a\n" + line + "\nb"), (Strings{"a", line, "b"}));
}

TEST(LineReader, CountsItsLinesAndRaisesPastTheEnd) {
    LineReader reader = LineReader::ofText("a\nb");
    reader.readLine();
    reader.readLine();
    EXPECT_EQ(reader.lineNumber(), 2U);
    EXPECT_RAISES(62, "Input past end of file", reader.readLine());
}

TEST(LineReader, RaisesForWhatCannotBeRead) {
    const TempDirectory directory;
    EXPECT_RAISES(53, "File not found", LineReader(directory.file("nowhere")));
    EXPECT_RAISES(75, "Path/File access error", LineReader(directory.path()));
    EXPECT_RAISES(53, "File not found", LineReader(""));
}

TEST(LineReader, RaisesWithoutPermission) {
    const TempDirectory directory;
    const std::string path = directory.write("locked", "a");
    std::filesystem::permissions(path, std::filesystem::perms::none);
    std::FILE* readable = std::fopen(path.c_str(), "rb");
    if (readable != nullptr) {
        // The superuser reads everything; the number of the error is then that of nothing at all.
        std::fclose(readable);
        EXPECT_EQ(readWholeFile(path), "a");
    } else {
        EXPECT_RAISES(70, "Permission denied", LineReader(path));
    }
}

TEST(LineWriter, EndsItsLinesInCrLfAndReplacesTheFile) {
    const TempDirectory directory;
    directory.write("out.txt", "a much longer former content");
    LineWriter writer(directory.file("out.txt"));
    writer.writeLine("a");
    writer.write("b");
    writer.writeLine("");
    writer.close();
    EXPECT_EQ(directory.read("out.txt"), "a\r\nb\r\n");
}

TEST(LineWriter, RaisesForWhatCannotBeWritten) {
    const TempDirectory directory;
    EXPECT_RAISES(76, "Path not found", LineWriter(directory.file("no/such/directory")));
    EXPECT_RAISES(75, "Path/File access error", LineWriter(directory.path()));
}

TEST(LineWriter, RaisesWhenTheDiskIsFull) {
    if (!std::filesystem::exists("/dev/full")) FAIL() << "the platform has no device that is always full";
    LineWriter writer("/dev/full");
    writer.writeLine("a");
    EXPECT_RAISES(61, "Disk full", writer.close());
}

TEST(QuotedRecords, KeepInnerQuotesAndCommas) {
    const TempDirectory directory;
    LineWriter writer(directory.file("records"));
    writeQuoted(writer, "MathLib.pow(t,2)");
    writeQuoted(writer, "a\"b");
    writer.close();
    EXPECT_EQ(directory.read("records"), "\"MathLib.pow(t,2)\"\r\n\"a\"b\"\r\n");
}

TEST(QuotedRecords, ACommaPartsOnlyOutsideQuotes) {
    QuotedRecordReader records("\"pow(t,2)\"\r\na,b\r\n  c  \r\n\"d\"  ,e\n");
    for (const char* record : {"pow(t,2)", "a", "b", "c", "d", "e"}) EXPECT_EQ(records.next(), record);
    EXPECT_TRUE(records.atEnd());
    EXPECT_RAISES(62, "Input past end of file", records.next());
}

TEST(QuotedRecords, AnUnclosedQuoteRunsToTheEnd) {
    QuotedRecordReader records("\"abc\r\n");
    EXPECT_EQ(records.next(), "abc\r\n");
    EXPECT_TRUE(records.atEnd());
}

TEST(ReadWholeFile, GivesTheBytes) {
    const TempDirectory directory;
    const std::string bytes(200000, '\0');
    EXPECT_EQ(readWholeFile(directory.write("zeros", bytes)), bytes);
}

}  // namespace
}  // namespace zg
