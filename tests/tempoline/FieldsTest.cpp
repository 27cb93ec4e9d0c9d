#include "tempoline/Fields.h"

#include <gtest/gtest.h>

#include <array>
#include <cmath>

#include "tempoline/Wind.h"

namespace zg::tempoline {

TEST(Fields, CutAtRunsOfBlanksAndTabs) {
    std::array<std::string_view, 4> fields;
    EXPECT_EQ(splitBlanks("  a\tbb   c ", fields), 3U);
    EXPECT_EQ(fields[0], "a");
    EXPECT_EQ(fields[1], "bb");
    EXPECT_EQ(fields[2], "c");
    EXPECT_EQ(splitBlanks("   ", fields), 0U);
    EXPECT_EQ(splitBlanks("1 2 3 4 5", fields), 4U);
}

TEST(Fields, CommasKeepEmptyFields) {
    std::array<std::string_view, 4> fields;
    EXPECT_EQ(splitCommas("a,,c", fields), 3U);
    EXPECT_EQ(fields[1], "");
    EXPECT_EQ(splitCommas("", fields), 1U);
}

TEST(Fields, Numbers) {
    EXPECT_EQ(valueOf("3.5"), 3.5);
    EXPECT_EQ(valueOf("+3."), 3.0);
    EXPECT_EQ(valueOf("-1e2"), -100.0);
    for (const char* const text : {"nan", "NaN", "-nan", "inf", "****", "", "1e999"})
        EXPECT_TRUE(valueOf(text) && std::isnan(*valueOf(text))) << text;
    for (const char* const text : {"abc", "1.2.3", "1,5", "--1", "+-1", "0x10", "1 2"})
        EXPECT_FALSE(valueOf(text)) << text;
}

TEST(Fields, WholeNumbers) {
    EXPECT_EQ(wholeOf("007"), 7);
    EXPECT_EQ(wholeOf("-7"), -7);
    EXPECT_EQ(wholeOf("7."), 7);
    EXPECT_EQ(wholeOf("7.00"), 7);
    for (const char* const text : {"", "7.5", "7a", "nan", "99999999999"})
        EXPECT_FALSE(wholeOf(text)) << text;
}

TEST(Wind, SectorsBeginAtTheirBoundaries) {
    EXPECT_EQ(sectorOf(0), 0);
    EXPECT_EQ(sectorOf(360), 0);
    EXPECT_EQ(sectorOf(11.249), 0);
    EXPECT_EQ(sectorOf(11.25), 1);
    EXPECT_EQ(sectorOf(348.749), 15);
    EXPECT_EQ(sectorOf(348.75), 0);
    EXPECT_EQ(sectorOf(180), 8);
}

TEST(Wind, ComponentsComeBack) {
    for (double direction = 0; direction < 360; direction += 7.5) {
        const Wind wind = windOf(componentsOf({5.4, direction}));
        EXPECT_EQ(wind.speed, 5.4);
        EXPECT_EQ(wind.direction, direction);
    }
    EXPECT_EQ(windOf({3.24, 4.32}).speed, 5.4);
    EXPECT_EQ(windOf({0, 0}).speed, 0);
    EXPECT_FALSE(hasDirection(windOf({0, 0})));
    EXPECT_FALSE(std::signbit(windOf({0, -2}).direction));
}

TEST(Wind, ACalmIsValidWithoutDirection) {
    EXPECT_TRUE(isValid({0.4, missingValue}, 0.5));
    EXPECT_FALSE(isValid({0.5, missingValue}, 0.5));
    EXPECT_FALSE(isValid({-0.1, 10}, 0.5));
    EXPECT_TRUE(isValid({90, 360}, 0.5));
    EXPECT_FALSE(isValid({90.01, 360}, 0.5));
    EXPECT_FALSE(isValid({5, 360.01}, 0.5));
}

}  // namespace zg::tempoline
