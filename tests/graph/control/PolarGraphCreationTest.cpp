#include <gtest/gtest.h>

#include <filesystem>

#include "graph/control/CreatePolar.h"
#include "tests/graph/control/PolarGraphFixture.h"

namespace zg {
namespace {

class PolarGraphCreation : public PolarGraphFixture {};

TEST_F(PolarGraphCreation, ReadiesTheTablesForOneRoseWithoutAFile) {
    tables.CurrentRose = 7;
    tables.FrqRoseCount = 9;
    tables.FrqCalmPercent.redim(9);
    const PolarGraph graph(window, host, tables);
    EXPECT_EQ(tables.CurrentRose, 1);
    EXPECT_EQ(tables.FrqRoseCount, 1);
    EXPECT_EQ(tables.FrqCalmPercent.size(), 2U);
    EXPECT_EQ(tables.FrqCalmPercent(1), "");
    EXPECT_FALSE(tables.FrqLoaded);
}

TEST_F(PolarGraphCreation, FillsTheFactoryStyle) {
    const PolarGraph graph(window, host, tables);
    EXPECT_EQ(tables.DirectionFont, (FontRecord{0, "Arial", 8, true, false}));
    EXPECT_EQ(tables.PercentFont, (FontRecord{0, "Arial", 7, false, false}));
    EXPECT_EQ(tables.GridLineColor, 14737632.0F);
    EXPECT_EQ(tables.WindClassColor, (std::array<float, 6>{255, 65280, 16711680, 65535, 16776960, 0}));
}

TEST_F(PolarGraphCreation, KeepsFontsThatHaveBeenChosen) {
    tables.LegendFont = {255, "Courier", 9, true, true};
    const PolarGraph graph(window, host, tables);
    EXPECT_EQ(tables.LegendFont, (FontRecord{255, "Courier", 9, true, true}));
    EXPECT_EQ(tables.LabelFont, (FontRecord{0, "Arial", 8, false, false}));
}

TEST_F(PolarGraphCreation, KeepsTheColoursOnceTheFontsAreNamed) {
    tables.LabelFont = {0, "Courier", 9, false, false};
    tables.WindClassColor = {1, 2, 3, 4, 5, 6};
    tables.GridLineColor = 7;
    const PolarGraph graph(window, host, tables);
    EXPECT_EQ(tables.WindClassColor, (std::array<float, 6>{1, 2, 3, 4, 5, 6}));
    EXPECT_EQ(tables.GridLineColor, 7.0F);
    EXPECT_EQ(tables.DirectionFont.name, "Arial") << "a font without a name still gets its own";
}

TEST_F(PolarGraphCreation, AConfigurationOfTheSuiteThatCannotBeReadIsNoReasonNotToStart) {
    std::filesystem::create_symlink("/proc/self/mem", directory.file("orbita.cfg"));
    EXPECT_NO_THROW(PolarGraph(window, host, tables));
    EXPECT_TRUE(host.boxes.empty());
}

TEST_F(PolarGraphCreation, ReadsTheWorkingDirectoryOfTheSuite) {
    directory.write("orbita.cfg", "Name=Suite\r\nWorkDir = /data/work \r\n");
    const PolarGraph graph(window, host, tables);
    EXPECT_EQ(tables.WorkDir, "/data/work");
}

TEST_F(PolarGraphCreation, WithoutTheSuitesFileThereIsNoWorkingDirectory) {
    tables.WorkDir = "/old";
    const PolarGraph graph(window, host, tables);
    EXPECT_EQ(tables.WorkDir, "");
}

TEST_F(PolarGraphCreation, PlacesThePageAndItsShadowAndShowsIt) {
    const PolarGraph graph(window, host, tables);
    EXPECT_EQ(graph.surfaces().picGraph, (ChildSurface{0, 0, 300, 300, true}));
    EXPECT_EQ(graph.surfaces().picShadow, (ChildSurface{3, 3, 300, 300, true}));
    EXPECT_EQ(window.pageSizes, (std::vector<std::pair<int, int>>{{300, 300}}));
}

TEST_F(PolarGraphCreation, AppliesTheDesignedProperties) {
    PropertyBag bag;
    bag.WriteProperty("ShowRuler", "True");
    bag.WriteProperty("OffsetDrawingAreaX", "40");
    bag.WriteProperty("OffsetDrawingAreaY", "30");
    bag.WriteProperty("ScrollBars", "1");
    bag.WriteProperty("Zoom", "100");
    const PolarGraph graph(window, host, tables, bag);
    EXPECT_TRUE(graph.surfaces().picRulerJ.visible);
    EXPECT_TRUE(graph.surfaces().hsScroll.visible);
    EXPECT_FALSE(graph.surfaces().vsScroll.visible);
    EXPECT_EQ(graph.surfaces().picGraph, (ChildSurface{40, 30, 600, 600, true}));
    EXPECT_EQ(graph.surfaces().picShadow, (ChildSurface{43, 33, 600, 600, true}));
}

TEST_F(PolarGraphCreation, PaintsThePageAfterItHasItsSizeAndLeavesTheStoreClean) {
    const PolarGraph graph(window, host, tables);
    EXPECT_EQ(window.frames(), 1U);
    EXPECT_EQ(graph.geometry().CentreX, 150.0F);
    EXPECT_EQ(window.count("propertyChanged"), 0);
}

TEST_F(PolarGraphCreation, ControlWithoutAutoUpdateNeverPaints) {
    PropertyBag bag;
    bag.WriteProperty("AutoUpdate", "False");
    PolarGraph graph(window, host, tables, bag);
    EXPECT_FALSE(graph.AutoUpdate());
    graph.Refresh();
    graph.Zoom(100);
    graph.AspectRatio(2);
    EXPECT_TRUE(window.canvas.commands.empty());
    EXPECT_EQ(window.count("pagePainted"), 0);
    EXPECT_EQ(graph.geometry().UnitLength, 0.0F);
    EXPECT_EQ(graph.AspectRatio(), 2.0F);
    EXPECT_EQ(window.pageSizes.back(), (std::pair<int, int>{600, 600}));
}

TEST_F(PolarGraphCreation, NamesTheCornersToolTip) {
    EXPECT_STREQ(PolarGraph::cornerToolTip,
                 "Left click to reset the drawing area: Right click to change the ruler mode.");
}

TEST_F(PolarGraphCreation, WritesNoTablesButThoseThatItIsGiven) {
    modPolarGraph = ModPolarGraph();
    modPolarGraph.CurrentRose = 7;
    modPolarGraph.WorkDir = "/old";
    PolarGraph graph(window, host, tables);
    graph.OpenFreqFile(ZG_SOURCE_DIR "/data/samples/LOVETT_1988.frq");
    EXPECT_TRUE(tables.FrqLoaded);
    EXPECT_EQ(&graph.tables(), &tables);
    EXPECT_EQ(modPolarGraph.CurrentRose, 7);
    EXPECT_EQ(modPolarGraph.FrqRoseCount, 0);
    EXPECT_EQ(modPolarGraph.WorkDir, "/old");
    EXPECT_EQ(modPolarGraph.LabelFont.name, "");
    EXPECT_FALSE(modPolarGraph.FrqLoaded);
    modPolarGraph = ModPolarGraph();
}

TEST_F(PolarGraphCreation, PolarAloneReadiesTheTablesThatItIsGiven) {
    const Polar polar = createPolar(tables);
    EXPECT_EQ(polar.Radius, 5.0F);
    EXPECT_EQ(tables.FrqRoseCount, 1);
    EXPECT_EQ(tables.LabelFont.name, "Arial");
}

}  // namespace
}  // namespace zg
