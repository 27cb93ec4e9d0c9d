#include <gtest/gtest.h>

#include <string>

#include "base/Lines.h"
#include "tests/support/TempDirectory.h"

namespace zg {
namespace {

std::size_t readLinesOf(LineReader reader) {
    std::size_t count = 0;
    for (; !reader.atEnd(); ++count) reader.readLine();
    return count;
}

TEST(LineSkip, CountsTheLinesThatReadingGives) {
    for (const std::string text : {"", "a", "a\n", "\n", "\r", "\r\n", "\n\r", "a\r\nb", "a\r\r\nb\n\n",
                                   "\n\n\r\r", "a\rb\rc", "\r\n\r\n", "a\n\r\nb\r"}) {
        LineReader reader = LineReader::ofText(text);
        EXPECT_EQ(reader.skipAll(), readLinesOf(LineReader::ofText(text))) << text;
        EXPECT_TRUE(reader.atEnd());
    }
}

TEST(LineSkip, CountsAcrossTheWindowsOfAFile) {
    const TempDirectory directory;
    for (const char* end : {"\r\n", "\n", "\r"}) {
        for (std::size_t shift = 0; shift < 3; ++shift) {
            std::string text(shift, 'x');
            while (text.size() < 200'000) text += std::string("line") + end;
            const std::string path = directory.write("lines.txt", text + std::string(100'000, 'y'));
            EXPECT_EQ(LineReader(path).skipAll(), readLinesOf(LineReader(path))) << shift;
        }
    }
}

TEST(LineSkip, CountsWhatIsLeftAndMovesTheLineNumber) {
    LineReader reader = LineReader::ofText("one\r\ntwo\r\n\r\nfour");
    reader.readLine();
    EXPECT_EQ(reader.skipAll(), 3U);
    EXPECT_EQ(reader.lineNumber(), 4U);
    EXPECT_EQ(reader.skipAll(), 0U);
}

TEST(LineAhead, ShowsWhatComesNextAndTakesNothing) {
    LineReader reader = LineReader::ofText("one\r\ntwo");
    EXPECT_EQ(reader.ahead(), "one\r\ntwo");
    EXPECT_EQ(reader.readLine(), "one");
    EXPECT_EQ(reader.ahead(), "two");
    reader.readLine();
    EXPECT_EQ(reader.ahead(), "");
}

TEST(LineAhead, FetchesTheBeginningOfAFile) {
    const TempDirectory directory;
    LineReader reader(directory.write("long.txt", std::string(300'000, 'x')));
    EXPECT_EQ(reader.ahead(), std::string(65'536, 'x'));
    EXPECT_EQ(reader.readLine().size(), 300'000U);
}

}  // namespace
}  // namespace zg
