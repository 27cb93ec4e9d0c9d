#include "graph/render/PagePacker.h"

#include <gtest/gtest.h>
#include <zlib.h>

#include <algorithm>
#include <random>
#include <string>

#include "graph/render/PrefixCode.h"

namespace zg {
namespace {

/// What zlib finds in the stream; it also checks the sum at the end.
std::string unpacked(const std::string& stream, std::size_t size) {
    std::string bytes(size + 1, '?');
    auto found = static_cast<uLongf>(bytes.size());
    auto used = static_cast<uLong>(stream.size());
    EXPECT_EQ(uncompress2(reinterpret_cast<Bytef*>(bytes.data()), &found,
                          reinterpret_cast<const Bytef*>(stream.data()), &used),
              Z_OK);
    EXPECT_EQ(used, stream.size());
    bytes.resize(found);
    return bytes;
}

std::size_t packedSize(const std::string& lines, std::size_t pixel = 3, std::size_t line = 1801) {
    const std::string stream = packedPage(lines, pixel, line);
    EXPECT_TRUE(unpacked(stream, lines.size()) == lines) << lines.size() << " bytes, lines of " << line;
    return stream.size();
}

std::string random(std::size_t size, int values, unsigned seed = 1) {
    std::mt19937 numbers(seed);
    std::string bytes(size, '\0');
    for (char& byte : bytes) byte = static_cast<char>(numbers() % static_cast<unsigned>(values));
    return bytes;
}

TEST(PagePacker, PacksNothingAndVeryLittle) {
    for (const char* text : {"", "a", "ab", "abc", "aaaa", "abcabcabc"}) packedSize(text, 3, 4);
}

TEST(PagePacker, KeepsWhateverBytesComeInLinesOfAnyLength) {
    for (unsigned seed = 0; seed < 100; ++seed) {
        const std::size_t size = 7 * seed * seed;
        const std::string bytes = random(size, seed % 3 == 0 ? 256 : 1 + static_cast<int>(seed % 5), seed);
        packedSize(bytes, 1 + seed % 4, 1 + seed * 131);
    }
}

TEST(PagePacker, PacksPlainLinesInAlmostNothing) {
    std::string page;
    for (int i = 0; i < 600; ++i) page += '\0' + std::string(1800, '\xFF');
    EXPECT_LT(packedSize(page), 2500U);
}

TEST(PagePacker, FindsTheLineBeforeAndWhatWasFartherBack) {
    const std::string line = random(1801, 256);
    EXPECT_LT(packedSize(line + line + line), 2100U);
    const std::string other = random(1500, 256, 2);
    EXPECT_LT(packedSize(line + other + line, 1, 3000), 1801 + 1500 + 400U);
}

TEST(PagePacker, FindsPixelsOfALineFartherBack) {
    const std::string line = '\0' + random(1800, 256);
    const std::string other = '\0' + random(1800, 256, 2);
    EXPECT_LT(packedSize(line + other + line), 2 * 1801 + 400U);
}

TEST(PagePacker, KeepsMatchesOfEachLength) {
    const std::string bytes = random(300, 256);
    for (std::size_t length = 1; length <= bytes.size(); ++length)
        packedSize(bytes + bytes.substr(0, length) + static_cast<char>(~bytes[length % bytes.size()]), 1,
                   300);
}

TEST(PagePacker, PrefersTheLineBeforeToBytesThatBeginAlike) {
    std::string line;
    for (unsigned i = 0; i < 180; ++i) line += "edge: " + random(4, 256, i);
    std::string page;
    for (int i = 0; i < 20; ++i) page += line;
    EXPECT_LT(packedSize(page, 3, line.size()), packedSize(line, 3, line.size()) + 300);
}

TEST(PagePacker, LooksBackAsFarAsTheFormatAllows) {
    const std::string begin = random(300, 256);
    for (const std::size_t distance : {32767U, 32768U, 32769U, 40000U}) {
        const std::string page = begin + random(distance - begin.size(), 256, 2) + begin;
        for (const std::size_t line : {32768U, 50000U}) {
            const std::size_t alone = packedSize(page.substr(0, distance), 1, line);
            const std::size_t more = packedSize(page, 1, line) - alone;
            if (distance <= 32768)
                EXPECT_LT(more, 60U) << distance;
            else
                EXPECT_GT(more, 250U) << distance;
        }
    }
}

TEST(PagePacker, SumsLongPages) {
    packedSize(std::string(3'000'000, '\xFF'));
    packedSize(random(700'001, 256));
}

/// Places that the words take, of 2 to the power of the longest.
std::uint64_t placesOf(const PrefixCode& code, unsigned longest) {
    std::uint64_t places = 0;
    for (const std::uint8_t length : code.lengths)
        if (length > 0) places += std::uint64_t{1} << (longest - length);
    return places;
}

TEST(PrefixCode, GivesFrequentSymbolsShortWords) {
    const PrefixCode code = prefixCode({0, 1, 5, 2, 1}, 15);
    EXPECT_EQ(code.lengths, (std::vector<std::uint8_t>{0, 3, 1, 2, 3}));
    // 0, 10, 110 and 111 with the bits in the order of writing
    EXPECT_EQ(code.words, (std::vector<std::uint16_t>{0, 3, 0, 1, 7}));
}

TEST(PrefixCode, KeepsWordsWithinTheLongestAndWastesNoPlace) {
    for (const unsigned longest : {5U, 7U, 15U}) {
        std::vector<std::uint32_t> counts = {1, 1};  // each word would be a bit longer than the one before
        while (counts.size() < 30) counts.push_back(counts.back() + counts[counts.size() - 2]);
        const PrefixCode code = prefixCode(counts, longest);
        EXPECT_EQ(*std::max_element(code.lengths.begin(), code.lengths.end()), longest);
        EXPECT_EQ(placesOf(code, longest), std::uint64_t{1} << longest);
        EXPECT_TRUE(std::is_sorted(code.lengths.rbegin(), code.lengths.rend()));
    }
}

}  // namespace
}  // namespace zg
