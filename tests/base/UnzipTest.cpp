#include <gtest/gtest.h>

#include "base/Lines.h"
#include "base/RunTimeError.h"
#include "tests/support/Gzip.h"
#include "tests/support/TempDirectory.h"

namespace zg {

namespace {

std::string allLines(const std::string& path) {
    LineReader lines(path);
    std::string text;
    while (!lines.atEnd()) text.append(lines.readLine()).append("|");
    return text;
}

/// What is wrong with a file of these bytes.
std::string unzipFault(const std::string& bytes) {
    const TempDirectory directory;
    try {
        allLines(directory.write("f.gz", bytes));
    } catch (const RunTimeError& error) {
        return std::to_string(error.number) + " " + error.description;
    }
    return "no fault";
}

}  // namespace

TEST(Unzip, LinesOfAGzipFileAreThoseOfTheText) {
    const TempDirectory directory;
    EXPECT_EQ(allLines(directory.write("a.gz", gzipped("one\r\ntwo\nthree"))), "one|two|three|");
    EXPECT_EQ(allLines(directory.write("b.gz", gzipped(""))), "");
    const std::string two = gzipped("one\ntw") + gzipped("o\n") + std::string(20, '\0');
    EXPECT_EQ(allLines(directory.write("c.gz", two)), "one|two|");
    std::string large;
    for (int i = 0; i < 100'000; ++i) large += std::to_string(i * 7919 % 100'003) + "\n";
    const std::string path = directory.write("d.gz", gzipped(large));
    std::string expected = large;
    for (char& c : expected) c = c == '\n' ? '|' : c;
    EXPECT_EQ(allLines(path), expected);
    LineReader lines(path);
    EXPECT_EQ(lines.skipAll(), 100'000U);
}

TEST(Unzip, DamagedAndCutOffFilesAreTold) {
    std::string zipped = gzipped(std::string(5000, 'x') + "\nabcdefghijklmnopqrstuvwxyz\n");
    EXPECT_EQ(unzipFault(zipped), "no fault");
    EXPECT_EQ(unzipFault(zipped.substr(0, zipped.size() - 1)), "57 the compressed data are cut off");
    EXPECT_EQ(unzipFault(zipped.substr(0, 5)), "57 the compressed data are cut off");
    EXPECT_EQ(unzipFault(zipped + "x"), "57 the compressed data are damaged");
    zipped[zipped.size() - 6] ^= 1;  // of the checksum
    EXPECT_EQ(unzipFault(zipped), "57 the compressed data are damaged");
    EXPECT_EQ(unzipFault("\x1F\x8B no gzip"), "57 the compressed data are damaged");
    EXPECT_EQ(unzipFault("\x1F"), "57 the compressed data are cut off");
}

}  // namespace zg
