#include "graph/frq/FreqHeader.h"

#include <string>

#include "tests/graph/frq/FreqLoad.h"

namespace zg {
namespace {

FreqHeaderSize sizeOf(std::string_view version, const std::string& text) {
    for (const FreqVersion& candidate : freqVersions) {
        if (candidate.name != version) continue;
        LineReader reader = LineReader::ofText(text);
        return readFreqHeaderSize(reader, candidate);
    }
    return {};
}

int errorOfSize(std::string_view version, const std::string& text) {
    try {
        sizeOf(version, text);
    } catch (const RunTimeError& error) {
        return error.number;
    }
    return 0;
}

TEST(FreqHeaderSize, OneCountGivesTwoLinesMore) {
    EXPECT_EQ(sizeOf("2.0", "6\n").lines, 8);
    EXPECT_EQ(sizeOf("2.1", "  11  \n").lines, 13);
    EXPECT_EQ(sizeOf("2.1", "  11  \n").leadCount, 11);
}

TEST(FreqHeaderSize, TwoCountsGiveTheirSumAndThree) {
    EXPECT_EQ(sizeOf("2.2", "1 - Comment lines\nc\n5 - Header lines\n1\n2\n3\n4\n5\n").lines, 9);
    EXPECT_EQ(sizeOf("2.3", "2 - x - y\nc\nc\n 6-\n1\n2\n3\n4\n5\n6\n").lines, 11);
    EXPECT_EQ(sizeOf("2.3", "0 -\n5\n1\n2\n3\n4\n5\n").leadCount, 0);
}

TEST(FreqHeaderSize, CountsAreRoundedHalfToEven) {
    EXPECT_EQ(sizeOf("2.0", "6.5").lines, 8);
    EXPECT_EQ(sizeOf("2.0", "7.5").lines, 10);
    EXPECT_EQ(sizeOf("2.0", "1,000").lines, 1002);
}

TEST(FreqHeaderSize, CountsAndTheirSumsAreOf16Bits) {
    EXPECT_EQ(sizeOf("2.0", "32765").lines, 32767);
    EXPECT_EQ(errorOfSize("2.0", "32766"), 6);
    EXPECT_EQ(errorOfSize("2.0", "32768"), 6);
    EXPECT_EQ(errorOfSize("2.0", "-32769"), 6);
    EXPECT_EQ(errorOfSize("2.0", "1e400"), 6);
    std::string many = "16384 - c\n";
    for (int i = 0; i < 16384; ++i) many += "c\n";
    many += "16380 - h\n";
    for (int i = 0; i < 16384; ++i) many += "h\n";
    EXPECT_EQ(sizeOf("2.2", many).lines, 32767);
    many.replace(many.find("16380"), 5, "16381");
    EXPECT_EQ(errorOfSize("2.2", many), 6);
    many.replace(many.find("16381"), 5, "16384");
    EXPECT_EQ(errorOfSize("2.2", many), 6);
}

TEST(FreqHeaderSize, ACountThatIsNoNumberIsATypeMismatch) {
    EXPECT_EQ(errorOfSize("2.0", "six\n"), 13);
    EXPECT_EQ(errorOfSize("2.1", "\n"), 13);
    EXPECT_EQ(errorOfSize("2.1", "6 - lines\n"), 13);
    EXPECT_EQ(errorOfSize("2.2", "- Comment lines\n"), 13);
    EXPECT_EQ(errorOfSize("2.2", "-1 - Comment lines\n"), 13);
    EXPECT_EQ(errorOfSize("2.2", "1 Comment lines\n"), 13);
    EXPECT_EQ(errorOfSize("2.2", "1 -\nc\nHeader lines\n"), 13);
}

TEST(FreqHeaderSize, AnEmptyCountLineHasNoPiece) { EXPECT_EQ(errorOfSize("2.2", "\n1\n"), 9); }

TEST(FreqHeaderSize, LinesThatAreMissingEndTheFile) {
    EXPECT_EQ(errorOfSize("2.0", ""), 62);
    EXPECT_EQ(errorOfSize("2.2", "3 - c\n1\n2\n"), 62);
    EXPECT_EQ(errorOfSize("2.2", "1 - c\nc\n"), 62);
    EXPECT_EQ(errorOfSize("2.2", "1 - c\nc\n5 - h\n1\n2\n3\n4\n"), 62);
}

using FreqHeader = FreqLoad;

TEST_F(FreqHeader, OneCountSkipsTheLinesAfterThePeriod) {
    freqtext::Lines lines = freqtext::file("2.1", 2);
    lines[1] = "9";
    lines.insert(lines.begin() + 8, {"a", "b", "c"});
    load(lines);
    EXPECT_EQ(tables.FrqRoseCount, 2);
    EXPECT_EQ(tables.FrqRoseTitle(2), "Rose 2");
}

TEST_F(FreqHeader, OneCountBelowSixSkipsNothing) {
    for (const char* count : {"5", "0", "-3"}) {
        freqtext::Lines lines = freqtext::file("2.0", 1);
        lines[1] = count;
        EXPECT_EQ(load(lines), FreqFileOutcome::Loaded);
        EXPECT_EQ(tables.FrqRoseTitle(1), "Rose 1");
    }
}

TEST_F(FreqHeader, TwoCountsSkipTheCommentsOnly) {
    freqtext::Lines lines = freqtext::file("2.3", 1);
    lines[1] = "3 - Comment lines";
    lines.insert(lines.begin() + 2, {"more", "comments"});
    load(lines);
    EXPECT_EQ(tables.FrqTitle1, "Station A");
    EXPECT_EQ(tables.FrqRoseTitle(1), "Rose 1");
}

TEST_F(FreqHeader, TheSecondCountOnlyMovesTheRoseCount) {
    freqtext::Lines lines = freqtext::file("2.2", 2);
    lines[3] = "6 - Header lines";
    load(lines);
    EXPECT_EQ(tables.FrqRoseCount, 2);
    EXPECT_EQ(tables.FrqRoseTitle(2), "Rose 2");
    lines[3] = "17 - Header lines";
    load(lines);
    EXPECT_EQ(tables.FrqRoseCount, 2) << "44 + 1 - 12 is one and a half roses, and halves go to even";
    lines[3] = "18 - Header lines";
    load(lines);
    EXPECT_EQ(tables.FrqRoseCount, 1);
    EXPECT_EQ(tables.FrqRoseTitle(1), "Rose 1");
}

TEST_F(FreqHeader, ALineMoreInTheSecondGroupMisalignsTheRoses) {
    freqtext::Lines lines = freqtext::file("2.2", 1);
    lines[3] = "6 - Header lines";
    lines.insert(lines.begin() + 9, "one more");
    EXPECT_EQ(errorOf(lines), 13) << "the headings are read as the first direction";
    EXPECT_EQ(tables.FrqRoseTitle(1), "");
}

TEST_F(FreqHeader, TrimsTheFirstTitleAndSqueezesTheSecond) {
    freqtext::Lines lines = freqtext::file("2.2", 1);
    lines[4] = "   Station   A ";
    lines[5] = "  Site    survey  2001   ";
    load(lines);
    EXPECT_EQ(tables.FrqTitle1, "Station   A");
    EXPECT_EQ(tables.FrqTitle2, "Site survey 2001");
}

TEST_F(FreqHeader, MeasureTakesTheTwoPiecesAroundItsFirstColon) {
    freqtext::Lines lines = freqtext::file("2.2", 1);
    lines[6] = "  Height  :   10 m : above ground";
    load(lines);
    EXPECT_EQ(tables.FrqMeasure, "Height = 10 m");
    lines[6] = ":";
    load(lines);
    EXPECT_EQ(tables.FrqMeasure, " = ");
}

TEST_F(FreqHeader, ClassLimitsStayAsTheyStand) {
    freqtext::Lines lines = freqtext::file("2.2", 1);
    lines[7] = "Classes: 0.5 , 1.0,two,, 9 : 11,12";
    load(lines);
    const std::vector<std::string> limits(tables.FrqClassLimit.begin(), tables.FrqClassLimit.end());
    EXPECT_EQ(limits, (std::vector<std::string>{" 0.5 ", " 1.0", "two", "", " 9 "}));
    lines[7] = "Classes:";
    load(lines);
    EXPECT_EQ(tables.FrqClassLimit.size(), 0U);
}

TEST_F(FreqHeader, ALineWithoutItsColonHasNoSecondPiece) {
    freqtext::Lines lines = freqtext::file("2.2", 1);
    lines[6] = "Height 10.0 m";
    EXPECT_EQ(errorOf(lines), 9);
    lines = freqtext::file("2.2", 1);
    lines[6] = "";
    EXPECT_EQ(errorOf(lines), 9);
    lines = freqtext::file("2.2", 1);
    lines[7] = "0.5,0.5,1.8,3.3,5.4,8.5,10.8";
    EXPECT_EQ(errorOf(lines), 9);
}

TEST_F(FreqHeader, TheLowestCountOverflowsOnlyWhereItsLinesAreSkipped) {
    freqtext::Lines lines = freqtext::file("2.0", 1);
    lines[1] = "-32768";
    EXPECT_EQ(errorOf(lines), 6);
    EXPECT_EQ(tables.FrqRoseCount, 1562);
    EXPECT_NE(tables.FrqPeriodText, "");
    EXPECT_TRUE(tables.ClassesFromFile);
}

}  // namespace
}  // namespace zg
