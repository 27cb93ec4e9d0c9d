#include "graph/frq/FreqVersion.h"

#include <gtest/gtest.h>

#include <string>

namespace zg {
namespace {

TEST(FreqVersion, TheLiteralTellsTheVersion) {
    for (const FreqVersion& version : freqVersions) {
        const FreqVersion* const found = freqVersionOf("  " + std::string(version.firstLine) + " ");
        ASSERT_NE(found, nullptr);
        EXPECT_EQ(found->name, version.name);
    }
    EXPECT_EQ(freqVersionOf(""), nullptr);
    EXPECT_EQ(freqVersionOf("WIND.FRQ        2.4             Zephyrgraph FRQ File Format"), nullptr);
}

TEST(FreqVersion, Version21HasTheHeaderOf20AndTheRosesOf22) {
    EXPECT_EQ(freqVersions[1].preamble, freqVersions[0].preamble);
    EXPECT_EQ(freqVersions[1].period, freqVersions[0].period);
    EXPECT_EQ(freqVersions[1].linesARose, freqVersions[2].linesARose);
    EXPECT_EQ(freqVersions[1].statistics, freqVersions[2].statistics);
}

TEST(FreqVersion, SomeFirstBytesDecide) {
    const std::string literal(freqVersions[3].firstLine);
    for (std::size_t length = 0; length <= literal.size(); ++length)
        EXPECT_TRUE(mayBeFreqFile("  " + literal.substr(0, length))) << length;
    EXPECT_TRUE(mayBeFreqFile(literal + " \r\nnext"));
    EXPECT_TRUE(mayBeFreqFile(std::string(1000, ' ')));
    for (const char* bytes : {"w", "\r\n", "  \n", "WIND.FRQ\r\n", "WIND.FRQ 2.2", "\tWIND.FRQ"})
        EXPECT_FALSE(mayBeFreqFile(bytes)) << bytes;
}

}  // namespace
}  // namespace zg
