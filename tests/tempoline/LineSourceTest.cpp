#include "tempoline/LineSource.h"

#include <gtest/gtest.h>

#include "tests/tempoline/TempolineSupport.h"

namespace zg::tempoline {

class LineSourceTest : public testing::TestWithParam<ReadAhead> {
 protected:
    std::vector<std::string> linesOf(const std::string& bytes) {
        LineSource source(directory_.write("a", bytes), GetParam());
        std::vector<std::string> lines;
        std::string_view line;
        while (source.next(line)) lines.emplace_back(line);
        return lines;
    }

    TempDirectory directory_;
};

TEST_P(LineSourceTest, TakesBothLineEndsAndALastLineWithoutOne) {
    EXPECT_EQ(linesOf("a\r\nbb\n\nc"), (std::vector<std::string>{"a", "bb", "", "c"}));
    EXPECT_EQ(linesOf("a\n"), (std::vector<std::string>{"a"}));
    EXPECT_TRUE(linesOf("").empty());
}

TEST_P(LineSourceTest, LinesGoOverTheEndsOfBlocks) {
    std::string bytes;
    std::vector<std::string> expected;
    for (int i = 0; bytes.size() < 5'000'000; ++i) {
        expected.push_back(std::string(static_cast<std::size_t>(i % 977), 'x') + std::to_string(i));
        bytes += expected.back() + "\n";
    }
    EXPECT_EQ(linesOf(bytes), expected);
}

TEST_P(LineSourceTest, TheLongestLineIsReadAndALongerOneIsNot) {
    EXPECT_EQ(linesOf(std::string(LineSource::longestLine, 'x') + "\n")[0].size(), LineSource::longestLine);
    for (const char* const end : {"", "\n", "\nmore\n"}) {
        const std::string message =
            failureOf([&] { linesOf("a\n" + std::string(LineSource::longestLine + 1, 'x') + end); });
        EXPECT_EQ(message, directory_.file("a") + ":2: the line is longer than 1048576 bytes");
    }
}

TEST_P(LineSourceTest, SkipsLinesOverTheEndsOfBlocks) {
    std::string bytes;
    std::size_t count = 0;
    for (; bytes.size() < 5'000'000; ++count)
        bytes += std::string(count % 1013, 'x') + std::to_string(count) + "\n";
    const std::string path = directory_.write("a", bytes);
    for (const std::size_t step : {std::size_t{1}, std::size_t{7}, std::size_t{2500}}) {
        LineSource source(path, GetParam());
        std::size_t number = 0;
        for (; number + step < count; number += step + 1) {
            source.skip(step, "a line");
            ASSERT_EQ(source.need("a line"),
                      std::string((number + step) % 1013, 'x') + std::to_string(number + step));
            ASSERT_EQ(source.lineNumber(), number + step + 1);
        }
        EXPECT_EQ(failureOf([&] { source.skip(step + 1, "a line"); }),
                  path + ":" + std::to_string(count + 1) + ": the file ends where a line should be");
    }
}

TEST_P(LineSourceTest, ALongLineIsNotPassedOver) {
    const std::string path =
        directory_.write("a", "a\n" + std::string(LineSource::longestLine + 1, 'x') + "\nb\n");
    LineSource source(path, GetParam());
    EXPECT_EQ(failureOf([&] { source.skip(3, "a line"); }),
              path + ":2: the line is longer than 1048576 bytes");
}

TEST_P(LineSourceTest, AnUnfinishedReaderStops) {
    LineSource source(directory_.write("a", std::string(10'000'000, '\n')), GetParam());
    std::string_view line;
    EXPECT_TRUE(source.next(line));
}

TEST_P(LineSourceTest, AMissingFileAndADirectoryAreFailures) {
    EXPECT_EQ(failureOf([&] { LineSource source(directory_.file("none"), GetParam()); }),
              directory_.file("none") + ": No such file or directory");
    EXPECT_EQ(failureOf([&] { LineSource source(directory_.path(), GetParam()); }),
              directory_.path() + ": Is a directory");
}

TEST_P(LineSourceTest, AFileThatShrankIsAFailure) {
    const std::string path = directory_.write("a", std::string(8'000'000, '\n'));
    LineSource source(path, GetParam());
    std::string_view line;
    ASSERT_TRUE(source.next(line));
    std::filesystem::resize_file(path, 7'000'000);
    const std::string message = failureOf([&] {
        while (source.next(line)) {
        }
    });
    EXPECT_EQ(message,
              path + ": the file became shorter while it was read: 7000000 of 8000000 bytes were there");
}

TEST_P(LineSourceTest, SaysWhatIsMissingAtTheEnd) {
    LineSource source(directory_.write("a", "1\n"), GetParam());
    EXPECT_EQ(source.need("the header"), "1");
    EXPECT_EQ(failureOf([&] { source.need("the period"); }),
              directory_.file("a") + ":2: the file ends where the period should be");
}

INSTANTIATE_TEST_SUITE_P(Threads, LineSourceTest, testing::Values(ReadAhead::No, ReadAhead::Yes),
                         [](const auto& threads) { return threads.param == ReadAhead::No ? "One" : "Two"; });

}  // namespace zg::tempoline
