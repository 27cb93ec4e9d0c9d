#include "base/Lines.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <string>
#include <utility>
#include <vector>

#include "tests/support/Raises.h"
#include "tests/support/System.h"
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
    EXPECT_EQ(linesOf("\n"), (Strings{""}));
    EXPECT_EQ(linesOf("a\r\n\r"), (Strings{"a", ""}));
}

TEST(LineReader, ANewLineByteAfterAPairIsALineOfItsOwn) {
    EXPECT_EQ(linesOf("a\r\n\nb"), (Strings{"a", "", "b"}));
    EXPECT_EQ(linesOf("a\r\r\nb"), (Strings{"a", "", "b"}));
    EXPECT_EQ(linesOf("a\n\rb"), (Strings{"a", "", "b"}));
}

TEST(LineReader, FindsEveryEndWhereverItStands) {
    for (std::size_t length = 250; length < 520; ++length) {
        const std::string line(length, 'x');
        ASSERT_EQ(linesOf(line + "\r\nb\rc\nd"), (Strings{line, "b", "c", "d"})) << length;
    }
}

TEST(LineReader, ACrAtTheVeryEndOfTheWindowAndTheFileEndsTheLine) {
    const std::string line(65535, 'x');
    EXPECT_EQ(linesOf(line + "\r"), (Strings{line}));
    EXPECT_EQ(linesOf(line + "\r\n"), (Strings{line}));
    EXPECT_EQ(linesOf(line + "\r\r"), (Strings{line, ""}));
}

TEST(LineReader, ManyLinesWithoutAnyLfCostNoTime) {
    std::string bytes;
    constexpr std::size_t count = 1'000'000;
    for (std::size_t i = 0; i < count; ++i) bytes += "a line\r";
    LineReader reader = LineReader::ofText(bytes);
    while (!reader.atEnd()) ASSERT_EQ(reader.readLine(), "a line");
    EXPECT_EQ(reader.lineNumber(), count);
}

TEST(LineReader, RefusesLinesBeyondALimitThatItIsGiven) {
    const TempDirectory directory;
    for (const std::size_t longest : {5U, 65536U, 200'000U}) {
        const std::string line(longest, 'x');
        for (const char* end : {"", "\n", "\r\n"}) {
            LineReader fits(directory.write("lines.txt", "a\n" + line + end), longest);
            fits.readLine();
            EXPECT_EQ(fits.readLine().size(), longest);
            LineReader reader(directory.write("lines.txt", "a\n" + line + "x" + end), longest);
            reader.readLine();
            try {
                reader.readLine();
                ADD_FAILURE() << longest;
            } catch (const RunTimeError& error) {
                EXPECT_EQ(error.number, 6);
                EXPECT_EQ(error.description, "the line is longer than " + std::to_string(longest) + " bytes");
                EXPECT_EQ(error.where, "2");
            }
        }
    }
}

TEST(LineReader, GivesUpItsFileAndKeepsWhatItHasFetched) {
    const TempDirectory directory;
    LineReader reader(directory.write("lines.txt", "a\n" + std::string(100'000, 'x')));
    EXPECT_EQ(reader.readLine(), "a");
    EXPECT_NE(reader.release(), nullptr);
    EXPECT_EQ(reader.readLine().size(), 65534U);
    EXPECT_TRUE(reader.atEnd());
    EXPECT_RAISES(62, "Input past end of file", reader.readLine());
}

TEST(LineReader, MovesWithWhatItHasFetched) {
    const TempDirectory directory;
    LineReader first(directory.write("lines.txt", "a\nb\nc"));
    first.readLine();
    LineReader second(std::move(first));
    EXPECT_EQ(second.readLine(), "b");
    EXPECT_EQ(second.lineNumber(), 2U);
    EXPECT_EQ(second.readLine(), "c");
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
    const std::string plain = directory.write("plain", "a");
    EXPECT_RAISES(76, "Path not found", LineReader(plain + "/below"));
    EXPECT_RAISES(53, "File not found", LineReader(directory.file("no/such/file")));
    EXPECT_RAISES(53, "File not found", LineReader(plain + std::string("\0x", 2)));
    EXPECT_RAISES(75, "Path/File access error", LineReader(std::string(100'000, 'x')));
    EXPECT_RAISES(75, "Path/File access error", readWholeFile(directory.path()));
}

TEST(LineReader, RefusesAPipeInsteadOfWaitingForItsWriter) {
    const TempDirectory directory;
    ASSERT_TRUE(makePipe(directory.file("pipe")));
    EXPECT_RAISES(75, "Path/File access error", LineReader(directory.file("pipe")));
    EXPECT_RAISES(75, "Path/File access error", readWholeFile(directory.file("pipe")));
}

TEST(LineReader, RaisesWithoutPermission) {
    const TempDirectory directory;
    const std::string path = directory.write("locked", "a");
    std::filesystem::permissions(path, std::filesystem::perms::none);
    std::FILE* readable = std::fopen(path.c_str(), "rb");
    if (readable != nullptr) {
        // The superuser can read every file, so there is no error to check.
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
    writer.close();
    EXPECT_EQ(directory.read("out.txt"), "a\r\nb\r\n") << "a second close does nothing";
}

TEST(LineWriter, WritesBytesAsTheyStand) {
    const TempDirectory directory;
    const std::string bytes("\0\xFF\n\x1A\t", 5);
    {
        LineWriter writer(directory.file("out.txt"));
        writer.write("");
        writer.writeLine(bytes);
    }
    EXPECT_EQ(directory.read("out.txt"), bytes + "\r\n") << "and closes without being told";
}

TEST(LineWriter, AFileWithoutLinesIsEmpty) {
    const TempDirectory directory;
    LineWriter(directory.file("out.txt")).close();
    EXPECT_EQ(directory.read("out.txt"), "");
}

TEST(LineWriter, RaisesForWhatCannotBeWritten) {
    const TempDirectory directory;
    EXPECT_RAISES(76, "Path not found", LineWriter(directory.file("no/such/directory")));
    EXPECT_RAISES(75, "Path/File access error", LineWriter(directory.path()));
    const std::string plain = directory.write("plain", "a");
    EXPECT_RAISES(76, "Path not found", LineWriter(plain + "/below"));
    EXPECT_RAISES(75, "Path/File access error", LineWriter(plain + std::string("\0x", 2)));
    EXPECT_EQ(directory.read("plain"), "a");
}

TEST(LineWriter, RaisesWhenTheDiskIsFull) {
    if (!std::filesystem::exists("/dev/full")) FAIL() << "the platform has no device that is always full";
    LineWriter writer("/dev/full");
    writer.writeLine("a");
    EXPECT_RAISES(61, "Disk full", writer.close());
    LineWriter large("/dev/full");
    EXPECT_RAISES(61, "Disk full", large.writeLine(std::string(1'000'000, 'a')));
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
    EXPECT_RAISES(62, "Input past end of file", QuotedRecordReader("").next());
}

TEST(QuotedRecords, WhatIsWrittenComesBack) {
    const TempDirectory directory;
    const Strings texts = {"POLAR GRAPH 1.0", "", "  a, b  ", "two\r\nlines", "tab\t", "\xE9"};
    LineWriter writer(directory.file("records"));
    for (const std::string& text : texts) writeQuoted(writer, text);
    writer.close();
    QuotedRecordReader records(readWholeFile(directory.file("records")));
    for (const std::string& text : texts) EXPECT_EQ(records.next(), text);
    EXPECT_TRUE(records.atEnd());
}

TEST(QuotedRecords, AnInnerQuoteEndsTheTextAndDropsTheRest) {
    QuotedRecordReader records("\"a\"b\"\r\n\"c\"d,e\r\n");
    for (const char* record : {"a", "c", "e"}) EXPECT_EQ(records.next(), record);
    EXPECT_TRUE(records.atEnd());
}

TEST(QuotedRecords, EmptyPlacesAreEmptyRecords) {
    QuotedRecordReader records(",\r\n\n\"\"\r  ");
    for (int i = 0; i < 5; ++i) EXPECT_EQ(records.next(), "") << i;
    EXPECT_TRUE(records.atEnd());
}

TEST(QuotedRecords, ABareTextKeepsItsInnerBlanksAndQuotes) {
    QuotedRecordReader records("  a \"b\"  c  ,d");
    EXPECT_EQ(records.next(), "a \"b\"  c");
    EXPECT_EQ(records.next(), "d");
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
    EXPECT_EQ(readWholeFile(directory.write("empty", "")), "");
    EXPECT_EQ(readWholeFile(directory.write("ends", "a\r\nb\n\r")), "a\r\nb\n\r");
}

}  // namespace
}  // namespace zg
