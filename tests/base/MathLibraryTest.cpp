#include "base/MathLibrary.h"

#include <gtest/gtest.h>

#include <cmath>
#include <limits>
#include <numbers>

#include "base/Style.h"
#include "tests/support/Raises.h"

namespace zg {
namespace {

TEST(MathLibrary, TurnsDegreesAndRadians) {
    EXPECT_DOUBLE_EQ(MathLibrary::Pi(), std::numbers::pi);
    EXPECT_DOUBLE_EQ(MathLibrary::Radians(180), std::numbers::pi);
    EXPECT_DOUBLE_EQ(MathLibrary::Degrees(std::numbers::pi / 2), 90);
    EXPECT_EQ(MathLibrary::Radians(0), 0);
    EXPECT_DOUBLE_EQ(MathLibrary::Radians(-90), -std::numbers::pi / 2);
    EXPECT_DOUBLE_EQ(MathLibrary::Degrees(MathLibrary::Radians(123.5)), 123.5);
}

TEST(MathLibrary, MeasuresCircles) {
    EXPECT_DOUBLE_EQ(MathLibrary::Area(2), 4 * std::numbers::pi);
    EXPECT_DOUBLE_EQ(MathLibrary::Circumference(2), 4 * std::numbers::pi);
    EXPECT_DOUBLE_EQ(MathLibrary::Diameter(2), 4);
    EXPECT_DOUBLE_EQ(MathLibrary::Radius(3, -4), 5);
    EXPECT_EQ(MathLibrary::Radius(0, 0), 0);
    EXPECT_DOUBLE_EQ(MathLibrary::Area(-1), std::numbers::pi);
    EXPECT_DOUBLE_EQ(MathLibrary::Circumference(-1), -2 * std::numbers::pi);
}

TEST(MathLibrary, GivesNothingAtAZeroDivisor) {
    EXPECT_EQ(MathLibrary::Csc(0), 0);
    EXPECT_EQ(MathLibrary::Cot(0), 0);
    EXPECT_DOUBLE_EQ(MathLibrary::Sec(0), 1);
    EXPECT_DOUBLE_EQ(MathLibrary::Csc(1), 1 / std::sin(1.0));
    EXPECT_DOUBLE_EQ(MathLibrary::Cot(1), std::cos(1.0) / std::sin(1.0));
    EXPECT_DOUBLE_EQ(MathLibrary::Sec(2), 1 / std::cos(2.0));
    EXPECT_TRUE(std::isfinite(MathLibrary::Sec(MathLibrary::Pi() / 2))) << "its cosine is only nearly 0";
}

TEST(MathLibrary, PowersGoByLogarithms) {
    EXPECT_NEAR(MathLibrary::pow(2, 10), 1024, 1e-9);
    EXPECT_DOUBLE_EQ(MathLibrary::pow(5, 0), 1);
    EXPECT_RAISES(5, "Invalid procedure call or argument", MathLibrary::pow(-2, 2));
    EXPECT_RAISES(5, "Invalid procedure call or argument", MathLibrary::pow(0, 2));
    EXPECT_RAISES(6, "Overflow", MathLibrary::pow(10, 400));
    EXPECT_NEAR(MathLibrary::pow(2, -1), 0.5, 1e-15);
    EXPECT_NEAR(MathLibrary::pow(9, 0.5), 3, 1e-14);
    EXPECT_EQ(MathLibrary::pow(10, -400), 0);
    EXPECT_RAISES(5, "Invalid procedure call or argument", MathLibrary::pow(std::nan(""), 2));
    EXPECT_RAISES(6, "Overflow", MathLibrary::pow(2, std::nan("")));
}

TEST(MathLibrary, MillisecondsAreSeconds) {
    EXPECT_DOUBLE_EQ(MathLibrary::Milliseconds(250), 0.25);
    EXPECT_EQ(MathLibrary::Milliseconds(0), 0);
    EXPECT_DOUBLE_EQ(MathLibrary::Milliseconds(32767), 32.767);
    EXPECT_DOUBLE_EQ(MathLibrary::Milliseconds(-32768), -32.768);
}

TEST(Style, StoredColoursArePaintedWithinTwentyFourBits) {
    EXPECT_EQ(paintedColour(14737630.0F), 14737630U);
    EXPECT_EQ(paintedColour(16777220.0F), 16777215U);
    EXPECT_EQ(paintedColour(3e38F), 16777215U);
    EXPECT_EQ(paintedColour(-5.0F), 0U);
    EXPECT_EQ(paintedColour(std::nanf("")), 0U);
    EXPECT_EQ(rgb(1, 2, 3), 0x030201U);
    EXPECT_EQ(paintedColour(0.0F), 0U);
    EXPECT_EQ(paintedColour(0.9F), 0U);
    EXPECT_EQ(paintedColour(255.9F), 255U);
    EXPECT_EQ(paintedColour(16777214.0F), 16777214U);
    EXPECT_EQ(paintedColour(16777215.0F), 16777215U);
    EXPECT_EQ(paintedColour(std::numeric_limits<float>::infinity()), 16777215U);
    EXPECT_EQ(paintedColour(-std::numeric_limits<float>::infinity()), 0U);
}

TEST(Style, RedIsTheLowByteOfAColour) {
    constexpr Colour colour = rgb(1, 2, 3);
    EXPECT_EQ(redOf(colour), 1U);
    EXPECT_EQ(greenOf(colour), 2U);
    EXPECT_EQ(blueOf(colour), 3U);
    EXPECT_EQ(yellowMark, rgb(255, 255, 0));
    EXPECT_EQ(darkYellowMark, rgb(192, 192, 0));
    EXPECT_EQ(cleanMark, 16777215U);
    EXPECT_EQ(redOf(buttonFaceColour), 15U) << "the mark of a desktop colour is in none of the three";
}

}  // namespace
}  // namespace zg
