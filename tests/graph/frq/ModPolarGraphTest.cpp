#include "graph/frq/ModPolarGraph.h"

#include <gtest/gtest.h>

namespace zg {
namespace {

FontRecord arial(std::int16_t size, bool bold) { return {0, "Arial", size, bold, false}; }

TEST(FractionRows, OfRosesLieSeventeenApart) {
    EXPECT_EQ(fractionRow(1, 1), 1);
    EXPECT_EQ(fractionRow(1, 16), 16);
    EXPECT_EQ(fractionRow(2, 1), 18);
    EXPECT_EQ(fractionRow(3, 16), 50);
    EXPECT_EQ(fractionRow(32767, 1), 17 * 32767 - 16);
}

TEST(FactoryStyle, HasAFontForEachKindOfText) {
    EXPECT_EQ(factoryLabelFont(), arial(8, false));
    EXPECT_EQ(factoryDirectionFont(), arial(8, true));
    EXPECT_EQ(factoryPercentFont(), arial(7, false));
    EXPECT_EQ(factoryLegendFont(), arial(7, false));
}

TEST(FactoryStyle, HasAColourForEachClassAndOneForTheGrid) {
    EXPECT_EQ(factoryWindClassColor(), (std::array<float, 6>{255, 65280, 16711680, 65535, 16776960, 0}));
    EXPECT_EQ(factoryGridLineColor, 14737632.0F);
}

TEST(FactoryStyle, FillsTablesThatHaveNone) {
    ModPolarGraph tables;
    fillFactoryStyle(tables);
    EXPECT_EQ(tables.LabelFont, arial(8, false));
    EXPECT_EQ(tables.DirectionFont, arial(8, true));
    EXPECT_EQ(tables.PercentFont, arial(7, false));
    EXPECT_EQ(tables.LegendFont, arial(7, false));
    EXPECT_EQ(tables.WindClassColor, factoryWindClassColor());
    EXPECT_EQ(tables.GridLineColor, factoryGridLineColor);
}

/// Tables with user-defined colours and two fonts, with or without names.
ModPolarGraph chosen(const char* labelFont, const char* legendFont) {
    ModPolarGraph tables;
    tables.LabelFont = {255, labelFont, 12, true, true};
    tables.LegendFont = {255, legendFont, 13, true, true};
    tables.WindClassColor = {1, 2, 3, 4, 5, 6};
    tables.GridLineColor = 7;
    return tables;
}

TEST(FactoryStyle, KeepsFontsThatHaveANameAndTheColoursWithThem) {
    for (const auto& [label, legend] :
         {std::pair{"Courier", "Times"}, std::pair{"Courier", ""}, std::pair{"", "Times"}}) {
        ModPolarGraph tables = chosen(label, legend);
        tables.DirectionFont = {255, "Courier", 9, false, true};
        tables.PercentFont = {255, "Courier", 10, false, true};
        fillFactoryStyle(tables);
        EXPECT_EQ(tables.LabelFont.name, *label == 0 ? "Arial" : label);
        EXPECT_EQ(tables.LabelFont.size, *label == 0 ? 8 : 12);
        EXPECT_EQ(tables.LegendFont.name, *legend == 0 ? "Arial" : legend);
        EXPECT_EQ(tables.LegendFont.size, *legend == 0 ? 7 : 13);
        EXPECT_EQ(tables.DirectionFont.size, 9);
        EXPECT_EQ(tables.PercentFont.size, 10);
        EXPECT_EQ(tables.WindClassColor, (std::array<float, 6>{1, 2, 3, 4, 5, 6}));
        EXPECT_EQ(tables.GridLineColor, 7);
    }
}

TEST(FactoryStyle, ReplacesTheColoursWhereNeitherFontHasAName) {
    ModPolarGraph tables = chosen("", "");
    fillFactoryStyle(tables);
    EXPECT_EQ(tables.WindClassColor, factoryWindClassColor());
    EXPECT_EQ(tables.GridLineColor, factoryGridLineColor);
}

}  // namespace
}  // namespace zg
