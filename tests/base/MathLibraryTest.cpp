#include "base/MathLibrary.h"

#include <gtest/gtest.h>

#include <cmath>
#include <numbers>

#include "base/Style.h"
#include "tests/support/Raises.h"

namespace zg {
namespace {

TEST(MathLibrary, TurnsDegreesAndRadians) {
    EXPECT_DOUBLE_EQ(MathLibrary::Pi(), std::numbers::pi);
    EXPECT_DOUBLE_EQ(MathLibrary::Radians(180), std::numbers::pi);
    EXPECT_DOUBLE_EQ(MathLibrary::Degrees(std::numbers::pi / 2), 90);
}

TEST(MathLibrary, MeasuresCircles) {
    EXPECT_DOUBLE_EQ(MathLibrary::Area(2), 4 * std::numbers::pi);
    EXPECT_DOUBLE_EQ(MathLibrary::Circumference(2), 4 * std::numbers::pi);
    EXPECT_DOUBLE_EQ(MathLibrary::Diameter(2), 4);
    EXPECT_DOUBLE_EQ(MathLibrary::Radius(3, -4), 5);
}

TEST(MathLibrary, GivesNothingAtAZeroDivisor) {
    EXPECT_EQ(MathLibrary::Csc(0), 0);
    EXPECT_EQ(MathLibrary::Cot(0), 0);
    EXPECT_DOUBLE_EQ(MathLibrary::Sec(0), 1);
    EXPECT_DOUBLE_EQ(MathLibrary::Csc(1), 1 / std::sin(1.0));
    EXPECT_DOUBLE_EQ(MathLibrary::Cot(1), std::cos(1.0) / std::sin(1.0));
}

TEST(MathLibrary, PowersGoByLogarithms) {
    EXPECT_NEAR(MathLibrary::pow(2, 10), 1024, 1e-9);
    EXPECT_DOUBLE_EQ(MathLibrary::pow(5, 0), 1);
    EXPECT_RAISES(5, "Invalid procedure call or argument", MathLibrary::pow(-2, 2));
    EXPECT_RAISES(5, "Invalid procedure call or argument", MathLibrary::pow(0, 2));
    EXPECT_RAISES(6, "Overflow", MathLibrary::pow(10, 400));
}

TEST(MathLibrary, MillisecondsAreSeconds) { EXPECT_DOUBLE_EQ(MathLibrary::Milliseconds(250), 0.25); }

TEST(Style, StoredColoursArePaintedWithinTwentyFourBits) {
    EXPECT_EQ(paintedColour(14737630.0F), 14737630U);
    EXPECT_EQ(paintedColour(16777220.0F), 16777215U);
    EXPECT_EQ(paintedColour(3e38F), 16777215U);
    EXPECT_EQ(paintedColour(-5.0F), 0U);
    EXPECT_EQ(paintedColour(std::nanf("")), 0U);
    EXPECT_EQ(rgb(1, 2, 3), 0x030201U);
}

}  // namespace
}  // namespace zg
