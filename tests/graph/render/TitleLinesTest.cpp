#include "graph/render/TitleLines.h"

#include <gtest/gtest.h>

#include "graph/render/RedrawGraph.h"
#include "tests/graph/render/RoseTables.h"
#include "tests/support/RecordingCanvas.h"

namespace zg {
namespace {

struct TitleLines : ::testing::Test {
    PlotSettings settings;
    Polar polar;
    ModPolarGraph tables = roseTables();
    RecordingCanvas canvas{400, 300};
    PolarGeometry geometry;

    std::vector<drawn::Text> redraw() {
        settings.ShowCoordinateSystem = settings.ShowLabel = settings.ShowLegend = false;
        redrawFrame(settings, polar, tables, canvas, geometry);
        return canvas.all<drawn::Text>();
    }
};

TEST_F(TitleLines, StandBelowOneAnotherWithTheirGap) {
    tables.LabelFont = {16711680, "Courier", 8, true, false};
    const TextStyle style{"Courier", 8, true, false, rgb(0, 0, 255)};
    // 300 / 20, then the line's height of 12 and a gap of 3 each.
    EXPECT_EQ(redraw(),
              (std::vector<drawn::Text>{
                  {{20, 15}, "Title", style}, {{20, 30}, "Subtitle", style}, {{20, 45}, "Caption", style}}));
}

TEST_F(TitleLines, EmptyLineStillTakesItsHeight) {
    tables.GraphTitle = "";
    tables.GraphSubTitle = "";
    const auto texts = redraw();
    ASSERT_EQ(texts.size(), 3U);
    EXPECT_EQ(texts[0].text, "");
    EXPECT_EQ(texts[2].text, "Caption");
    EXPECT_EQ(texts[2].at, (Point{20, 45}));
}

TEST_F(TitleLines, AreLeftOutOnlyWhereAllAreEmpty) {
    tables.GraphTitle = tables.GraphSubTitle = tables.GraphCaption = "";
    EXPECT_TRUE(redraw().empty());
    tables.GraphSubTitle = "Subtitle";
    EXPECT_EQ(redraw().size(), 3U);
}

TEST_F(TitleLines, NeedNoFile) {
    tables.FrqLoaded = false;
    EXPECT_EQ(redraw().size(), 3U);
}

TEST_F(TitleLines, ThatShrinkAreSmallerWithThePageAtTheSameEdgeAndGap) {
    settings.Style.shrinkTexts = true;
    settings.Zoom = 50;
    const auto texts = redraw();
    ASSERT_EQ(texts.size(), 3U);
    for (const drawn::Text& line : texts) {
        EXPECT_EQ(line.style.size, 4);
        EXPECT_EQ(line.at.x, 20);
    }
    EXPECT_EQ(texts[0].at.y, 15);
    EXPECT_EQ(texts[1].at.y, 15 + canvas.measure("x", texts[0].style).height + 3);
    settings.Zoom = 100;
    canvas.commands.clear();
    EXPECT_EQ(redraw()[0].style.size, 8);
}

}  // namespace
}  // namespace zg
