#include "graph/frq/ClassLimits.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace zg {
namespace {

using Texts = std::vector<std::string>;

Texts textsOf(const Table<std::string>& table) { return {table.begin(), table.end()}; }

ModPolarGraph withLimits(const Texts& limits) {
    ModPolarGraph tables;
    tables.FrqClassLimit.assign(limits);
    return tables;
}

int errorOfKnots(ModPolarGraph& tables) {
    try {
        buildKnotTable(tables);
    } catch (const RunTimeError& error) {
        return error.number;
    }
    return 0;
}

TEST(ClassLimits, KnotsAreScientificForTheCalmThresholdOnly) {
    ModPolarGraph tables = withLimits({"0.5", "0.5", "1.8", "3.3", "5.4", "8.5", "10.8"});
    buildKnotTable(tables);
    EXPECT_EQ(textsOf(tables.KnotClassLimit),
              (Texts{"9.72E-01", "0.97", "3.5", "6.41", "10.5", "16.52", "20.99"}));
    EXPECT_TRUE(tables.KnotTableReady);
}

TEST(ClassLimits, KnotsOfLargeAndZeroCalmThresholds) {
    ModPolarGraph tables = withLimits({"10", " 0 "});
    buildKnotTable(tables);
    EXPECT_EQ(textsOf(tables.KnotClassLimit), (Texts{"1.94E+01", "0"}));
    tables = withLimits({"0"});
    buildKnotTable(tables);
    EXPECT_EQ(textsOf(tables.KnotClassLimit), (Texts{"0.00E+00"}));
}

TEST(ClassLimits, KnotsTakeTheBoundsOfTheFilesLimits) {
    ModPolarGraph tables = withLimits({"1", "2", "3", "4", "5", "6", "7", "8", "9"});
    buildKnotTable(tables);
    EXPECT_EQ(tables.KnotClassLimit.size(), 9U);
    EXPECT_EQ(tables.KnotClassLimit(8), "17.49");
}

TEST(ClassLimits, KnotsOfNoNumberFailAndAreNotReady) {
    ModPolarGraph tables = withLimits({"0.5", "1", "x", "3"});
    EXPECT_EQ(errorOfKnots(tables), 13);
    EXPECT_EQ(textsOf(tables.KnotClassLimit), (Texts{"9.72E-01", "1.94", "", ""}));
    EXPECT_FALSE(tables.KnotTableReady);
}

TEST(ClassLimits, KnotsOfNoLimitsAreOutOfRange) {
    ModPolarGraph tables;
    EXPECT_EQ(errorOfKnots(tables), 9);
    EXPECT_FALSE(tables.KnotTableReady);
}

TEST(ClassLimits, LegendCopiesTheTableOfItsUnit) {
    ModPolarGraph tables = withLimits({" 0.5", "1", "2", "3", "4", "5", "6 "});
    tables.KnotClassLimit.assign({"k0", "k1", "k2", "k3", "k4", "k5", "k6"});
    tables.ClassesFromFile = true;
    EXPECT_EQ(rebuildLegendLimits(tables), "m/s");
    EXPECT_EQ(textsOf(tables.LegendClassLimit), textsOf(tables.FrqClassLimit));

    tables.ClassesFromFile = false;
    tables.ClassesInKnots = true;
    tables.KnotTableReady = true;
    EXPECT_EQ(rebuildLegendLimits(tables), "knots");
    EXPECT_EQ(textsOf(tables.LegendClassLimit), (Texts{"k0", "k1", "k2", "k3", "k4", "k5", "k6"}));
}

TEST(ClassLimits, LegendInKnotsBuildsTheTableOfTheLoadedFile) {
    ModPolarGraph tables = withLimits({"0.5", "1", "2", "3", "4", "5", "6"});
    tables.KnotClassLimit.assign({"of", "the", "file", "that", "was", "loaded", "before"});
    tables.ClassesInKnots = true;
    EXPECT_EQ(rebuildLegendLimits(tables), "knots");
    EXPECT_EQ(textsOf(tables.LegendClassLimit),
              (Texts{"9.72E-01", "1.94", "3.89", "5.83", "7.78", "9.72", "11.66"}));
    EXPECT_TRUE(tables.KnotTableReady);
}

TEST(ClassLimits, LegendWithoutUnitIsEmpty) {
    ModPolarGraph tables = withLimits({"0.5", "1", "2", "3", "4", "5", "6"});
    tables.ClassesFromFile = true;
    rebuildLegendLimits(tables);
    tables.ClassesFromFile = false;
    EXPECT_EQ(rebuildLegendLimits(tables), "");
    EXPECT_EQ(textsOf(tables.LegendClassLimit), Texts(7));
}

}  // namespace
}  // namespace zg
