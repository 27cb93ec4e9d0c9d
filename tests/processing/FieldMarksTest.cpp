#include "processing/FieldMarks.h"

#include <gtest/gtest.h>

namespace {

using namespace zg;

constexpr Colour grey = rgb(200, 200, 200);

TEST(FieldMarksTest, ColoursAreTheAgreedNumbers) {
    EXPECT_EQ(yellowMark, 65535U);
    EXPECT_EQ(darkYellowMark, 49344U);
    EXPECT_EQ(cleanMark, 0xFFFFFFU);
}

TEST(FieldMarksTest, DisablingKeepsAMarkInADarkerYellow) {
    EXPECT_EQ(disabledMark(yellowMark), darkYellowMark);
    EXPECT_EQ(disabledMark(cleanMark), buttonFaceColour);
    EXPECT_EQ(disabledMark(grey), buttonFaceColour);
    EXPECT_EQ(disabledMark(darkYellowMark), buttonFaceColour) << "disabling twice loses the mark";
}

TEST(FieldMarksTest, EnablingBringsTheMarkBack) {
    EXPECT_EQ(enabledMark(darkYellowMark), yellowMark);
    EXPECT_EQ(enabledMark(buttonFaceColour), cleanMark);
    EXPECT_EQ(enabledMark(yellowMark), cleanMark);
    EXPECT_EQ(enabledMark(disabledMark(yellowMark)), yellowMark);
}

TEST(FieldMarksTest, FilledFieldLosesTheYellowOnly) {
    EXPECT_EQ(filledMark(yellowMark, "5"), cleanMark);
    EXPECT_EQ(filledMark(yellowMark, " "), cleanMark) << "a blank is text";
    EXPECT_EQ(filledMark(yellowMark, ""), yellowMark);
    EXPECT_EQ(filledMark(darkYellowMark, "5"), darkYellowMark);
    EXPECT_EQ(filledMark(grey, "5"), grey);
}

}  // namespace
