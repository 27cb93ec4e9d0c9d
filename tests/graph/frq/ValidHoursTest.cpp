#include "graph/frq/ValidHours.h"

#include <gtest/gtest.h>

namespace zg {
namespace {

ModPolarGraph withPercents(const char* version, std::vector<float> percents) {
    ModPolarGraph tables;
    tables.FrqVersion = version;
    tables.FrqPercentValid.assign(std::move(percents));
    return tables;
}

int errorNumberOf(const ModPolarGraph& tables, int rose) {
    try {
        hasEnoughValidHours(tables, rose, 50);
    } catch (const RunTimeError& error) {
        return error.number;
    }
    return 0;
}

TEST(ValidHours, ARoseAtTheLimitHasEnough) {
    for (const char* version : {"2.1", "2.2", "2.3"}) {
        const ModPolarGraph tables = withPercents(version, {0, 49.9F, 50, 100});
        EXPECT_FALSE(hasEnoughValidHours(tables, 1, 50)) << version;
        EXPECT_TRUE(hasEnoughValidHours(tables, 2, 50)) << version;
        EXPECT_TRUE(hasEnoughValidHours(tables, 3, 50)) << version;
        EXPECT_TRUE(hasEnoughValidHours(tables, 3, 100)) << version;
        EXPECT_FALSE(hasEnoughValidHours(tables, 2, 100)) << version;
        EXPECT_TRUE(hasEnoughValidHours(tables, 1, 0)) << version;
    }
}

TEST(ValidHours, Version20HasNoFigureAndAllOfItsRosesHaveEnough) {
    EXPECT_TRUE(hasEnoughValidHours(withPercents("2.0", {}), 1, 100));
}

TEST(ValidHours, OlderOnesHaveNone) {
    EXPECT_FALSE(hasEnoughValidHours(withPercents("1.9", {0, 100}), 1, 0));
}

TEST(ValidHours, ThereIsNoAnswerWithoutAFileOrBeyondItsRoses) {
    EXPECT_EQ(errorNumberOf(withPercents("", {}), 1), 13);
    EXPECT_EQ(errorNumberOf(withPercents("2.2", {0, 100}), 2), 9);
}

}  // namespace
}  // namespace zg
