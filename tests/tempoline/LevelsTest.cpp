#include "tempoline/readers/Levels.h"

#include <gtest/gtest.h>

namespace zg::tempoline {

TEST(Levels, ALevelGivesItsOwnWind) {
    const std::vector<Level> levels = {{10, {5.4, 11.25}}, {20, {3, missingValue}}};
    EXPECT_EQ(windAtHeight(levels, 10).speed, 5.4);
    EXPECT_EQ(windAtHeight(levels, 10).direction, 11.25);
    EXPECT_EQ(windAtHeight(levels, 20).speed, 3);
    EXPECT_FALSE(hasSpeed(windAtHeight(levels, 15)));
}

TEST(Levels, TheNoiseOfASumIsNoHeight) {
    const std::vector<Level> levels = {{1.12, {1, 90}}, {11.12, {5.4, 11.25}}};
    ASSERT_GT(1.12 + 10, 11.12);
    EXPECT_EQ(windAtHeight(levels, 1.12 + 10).speed, 5.4);
    EXPECT_EQ(windAtHeight(levels, 11.12 - 1e-12).direction, 11.25);
    EXPECT_FALSE(hasSpeed(windAtHeight(levels, 11.121)));
}

TEST(Levels, ComponentsAreInterpolated) {
    const std::vector<Level> levels = {{10, {4, 90}}, {30, {4, 180}}};
    const Wind wind = windAtHeight(levels, 20);
    EXPECT_EQ(wind.direction, 135);
    EXPECT_NEAR(wind.speed, 2.828427, 1e-9);
    EXPECT_EQ(windAtHeight({{0, {0, missingValue}}, {10, {4, 90}}}, 5).speed, 2);
}

TEST(Levels, OutsideThereIsNoWind) {
    const std::vector<Level> levels = {{10, {4, 90}}, {30, {4, 180}}};
    EXPECT_FALSE(hasSpeed(windAtHeight(levels, 9.99)));
    EXPECT_FALSE(hasSpeed(windAtHeight(levels, 30.01)));
    EXPECT_FALSE(hasSpeed(windAtHeight({}, 10)));
}

}  // namespace zg::tempoline
