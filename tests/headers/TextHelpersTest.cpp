#include "headers/TextHelpers.h"

#include <gtest/gtest.h>

#include "tests/support/Raises.h"

namespace {

using namespace zg;

TEST(SqueezeBlanksTest, SingleBlanksBetweenTheWords) {
    std::string text = "   a  b     c d   ";
    EXPECT_EQ(SqueezeBlanks(text), "a b c d");
}

TEST(SqueezeBlanksTest, ConsumesItsArgument) {
    std::string text = " a  b ";
    SqueezeBlanks(text);
    EXPECT_EQ(text, "");
    EXPECT_EQ(SqueezeBlanks(text), "") << "a second use has nothing left";
}

TEST(SqueezeBlanksTest, BlanksAloneAreNothingAndTabsStay) {
    std::string blanks = "     ";
    EXPECT_EQ(SqueezeBlanks(blanks), "");
    std::string tabs = " \ta \t b";
    EXPECT_EQ(SqueezeBlanks(tabs), "\ta \t b");
}

TEST(SqueezeBlanksTest, AssigningToTheArgumentItselfWorks) {
    std::string line = " x   y ";
    line = SqueezeBlanks(line);
    EXPECT_EQ(line, "x y");
}

TEST(RemoveQuotesTest, TrimsThenDropsEveryQuote) {
    std::string text = "  \"a\",\" b \"\"c\"  ";
    EXPECT_EQ(RemoveQuotes(text), "a, b c");
    EXPECT_EQ(text, "");
    std::string inner = "\" a \"";
    EXPECT_EQ(RemoveQuotes(inner), " a ") << "blanks within the quotes stay";
}

TEST(FindColumnTest, IndexOfTheFirstMatchOrMinusOne) {
    const std::vector<std::string> fields = {"DATETIME", " STNCODE ", "DATAAVID", "STNCODE"};
    EXPECT_EQ(FindColumn("DATETIME", fields), 0);
    EXPECT_EQ(FindColumn("STNCODE", fields), 1);
    EXPECT_EQ(FindColumn("WSPD", fields), -1);
    EXPECT_EQ(FindColumn("stncode", fields), -1) << "case counts";
    EXPECT_EQ(FindColumn(" STNCODE ", fields), -1) << "only the field is trimmed";
    EXPECT_EQ(FindColumn("X", std::vector<std::string>()), -1);
}

TEST(FindColumnTest, TakesTheResultOfASplit) {
    const std::string line = "a, b ,c";
    EXPECT_EQ(FindColumn("a", split(line, ",")), 0);
    EXPECT_EQ(FindColumn("b", split(line, ",")), 1);
    EXPECT_EQ(FindColumn("d", split(line, ",")), -1);
    EXPECT_EQ(FindColumn("", split("", ",")), -1);
}

TEST(LatAndLonTest, LastCharacterTellsTheSide) {
    EXPECT_EQ(LatToNumber("45.5N"), 45.5);
    EXPECT_EQ(LatToNumber("45.5S"), -45.5);
    EXPECT_EQ(LonToNumber(" 120 W "), -120.0);
    EXPECT_EQ(LonToNumber("120E"), 120.0);
    EXPECT_EQ(LatToNumber("12W"), 12.0) << "W is no side of a latitude";
    EXPECT_EQ(LonToNumber("12S"), 12.0);
    EXPECT_EQ(LatToNumber("45.5s"), 45.5) << "the letter's case counts";
    EXPECT_EQ(LatToNumber("123"), 12.0) << "whatever the last character is";
}

TEST(LatAndLonTest, WhatIsNoNumberRaises) {
    EXPECT_RAISES(5, "Invalid procedure call or argument", LatToNumber(""));
    EXPECT_RAISES(5, "Invalid procedure call or argument", LonToNumber("   "));
    EXPECT_RAISES(13, "Type mismatch", LatToNumber("N"));
    EXPECT_RAISES(13, "Type mismatch", LonToNumber("1.2.3W"));
}

TEST(LatAndLonTest, TextIsOfTheAbsoluteValueThatTheArgumentBecomes) {
    double south = -45.5;
    EXPECT_EQ(LatToText(south), "45.5S");
    EXPECT_EQ(south, 45.5);
    EXPECT_EQ(LatToText(south), "45.5N") << "a second use has lost the sign";
    double west = -0.25;
    EXPECT_EQ(LonToText(west), "0.25W");
    EXPECT_EQ(west, 0.25);
    double east = 120;
    EXPECT_EQ(LonToText(east), "120E");
    double zero = 0;
    EXPECT_EQ(LatToText(zero), "0N");
}

}  // namespace
